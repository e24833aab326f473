#include "exchange/list_cell.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(ListCell, HasALineForEachText)
{
    EXPECT_EQ(WriteList({}), u""_s);
    EXPECT_EQ(WriteList({u"a"_s, u"b c"_s}), u"a\nb c"_s);
    EXPECT_EQ(*ReadList(u"a\r\n\r\n  b c\t\r"_s), (QStringList{u"a"_s, u"b c"_s}));
    EXPECT_EQ(*ReadList(u" \n"_s), QStringList());
}

TEST(ListCell, EscapesWhatALineCannotHold)
{
    const QStringList texts = {u""_s,   u" "_s,       u"  "_s,  u" a b "_s, u"a\nb"_s, u"\ta\t"_s,
                               u"\\"_s, u"C:\\new"_s, u"\\-"_s, u"-"_s,     u"\n"_s,   u"a  b"_s};
    const QString cell = WriteList(texts);
    EXPECT_EQ(cell, u"\\-\n\\s\n\\s\\s\n\\sa b\\s\na\\nb\n\\ta\\t\n\\\\\nC:\\\\new\n\\\\-\n-\n"
                    "\\n\na  b"_s);
    EXPECT_EQ(*ReadList(cell), texts);
    EXPECT_EQ(WriteList({u"a\r\nb\rc"_s}), u"a\\nb\\nc"_s);
}

TEST(ListCell, RefusesABackslashThatMeansNothing)
{
    const std::pair<QString, QString> cells[] = {
        {u"a\nYes\\No"_s, u"'\\N' means nothing; write '\\\\' for a backslash."_s},
        {u"a\\-"_s, u"'\\-' means nothing; write '\\\\' for a backslash."_s},
        {u"a\\\nb"_s, u"'\\' means nothing; write '\\\\' for a backslash."_s},
    };
    for (const auto &[cell, reason] : cells) {
        const Result<QStringList> texts = ReadList(cell);
        ASSERT_FALSE(texts);
        EXPECT_EQ(texts.error().text, reason);
    }
}
