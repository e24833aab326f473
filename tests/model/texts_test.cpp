#include "model/texts.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(Texts, TrimsBlanksAlone)
{
    const struct {
        const char *what;
        QString text, trimmed;
    } rows[] = {
        {"blanks at both ends", u"  Stock check  "_s, u"Stock check"_s},
        {"blanks inside stay", u" a  b "_s, u"a  b"_s},
        {"tabs and line breaks stay", u" \ta\r\n "_s, u"\ta\r\n"_s},
        {"a no-break space stays", u"\u00A0a"_s, u"\u00A0a"_s},
        {"nothing but blanks", u"   "_s, u""_s},
        {"nothing", u""_s, u""_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(TrimBlanks(row.text).toString(), row.trimmed);
    }
}

TEST(Texts, EncodesOrNamesPlaceAndCharacter)
{
    QByteArray bytes;
    EXPECT_TRUE(AppendEncoded(bytes, u"caf\u00E9", {"title"_L1, 3}));
    EXPECT_EQ(bytes, "caf\xE9");

    const Outcome refused = AppendEncoded(bytes, u"5 k\u03A9", {"title"_L1, 3});
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().text, u"The title of question 3 has the character '\u03A9' (U+03A9), "
                                    "which windows-1252 does not have."_s);
    EXPECT_EQ(Describe(TextPlace{"form name"_L1}), u"The form name"_s);
}

TEST(Texts, AreQuotedWithTheirPlace)
{
    EXPECT_EQ(Quote({"title"_L1, 3}, u"a\"b"_s), u"question 3, title: \"a\"b\""_s);
    EXPECT_EQ(Quote({"form name"_L1}, u"a"_s), u"form name: \"a\""_s);
    EXPECT_EQ(Quote({"item list"_L1, 1}, u""_s), u"question 1, item list"_s);
}
