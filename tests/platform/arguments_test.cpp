#include "platform/arguments.h"

#include "support/print.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(Arguments, AreRefusedWhereTheyWouldComeOutAsOthers)
{
    const struct {
        const char *what, *word;
        QString shown;
    } rows[] = {
        {"ASCII", "a b.vmp", u""_s},
        {"UTF-8", "caf\xC3\xA9 \xF0\x9F\x90\xA6.vmp", u""_s},
        {"nothing", "", u""_s},
        {"a byte of its own", "\xFF.vmp", uR"(\xff.vmp)"_s},
        {"windows-1252", "caf\xE9.vmp", uR"(caf\xe9.vmp)"_s},
        {"cut in two", "caf\xC3", uR"(caf\xc3)"_s},
        {"half of a pair", "\xED\xA0\x80", uR"(\xed\xa0\x80)"_s},
        {"longer than need be", "\xC0\xAF", uR"(\xc0\xaf)"_s},
        {"a mark that is left out",
         "\xEF\xBB\xBF"
         "a b",
         uR"(\xef\xbb\xbfa\x20b)"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        const char *arguments[] = {"vellumo", "review", row.word};
        const Outcome checked = CheckArguments(3, arguments);
        EXPECT_EQ(bool(checked), row.shown.isEmpty());
        if (!checked) {
            EXPECT_EQ(checked.error().text,
                      u"The name '%1' is not in the encoding of this system."_s.arg(row.shown));
        }
    }
}
