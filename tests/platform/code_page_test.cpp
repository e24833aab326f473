#include "platform/code_page.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(CodePage, EveryByteHasItsCharacterAndComesBack)
{
    for (int byte = 0; byte < 256; ++byte) {
        const QByteArray bytes(1, static_cast<char>(byte));
        const QString text = FromWindows1252(bytes);
        ASSERT_EQ(text.size(), 1) << byte;
        QByteArray back;
        EXPECT_EQ(AppendWindows1252(back, text), -1) << byte;
        EXPECT_EQ(back, bytes) << byte;
    }
}

TEST(CodePage, DecodesBySample)
{
    const struct {
        const char *what;
        unsigned char byte;
        char16_t character;
    } rows[] = {
        {"a letter", 'A', u'A'},
        {"the euro sign opens the upper half", 0x80, 0x20AC},
        {"an unassigned byte is the control character of its number", 0x81, 0x0081},
        {"the ellipsis", 0x85, 0x2026},
        {"the last of the special ones", 0x9F, 0x0178},
        {"from A0 on number and character agree", 0xA0, 0x00A0},
        {"the last byte", 0xFF, 0x00FF},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        const char byte = static_cast<char>(row.byte);
        EXPECT_EQ(FromWindows1252(QByteArrayView(&byte, 1)), QString(QChar(row.character)));
    }
}

TEST(CodePage, StopsAtTheFirstCharacterThatItLacks)
{
    const struct {
        const char *what;
        QString text;
        qsizetype index;
        QByteArray appended;
    } rows[] = {
        {"nothing to do", u""_s, -1, ""},
        {"all of it", u"a\u20ACb"_s, -1,
         "a\x80"
         "b"},
        {"Greek", u"ab\u03A9c"_s, 2, "ab"},
        {"C1 controls that stand for other characters", u"\u0080"_s, 0, ""},
        {"a surrogate pair", u"x\U0001F600"_s, 1, "x"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        QByteArray bytes = "before:";
        EXPECT_EQ(AppendWindows1252(bytes, row.text), row.index);
        EXPECT_EQ(bytes, "before:" + row.appended);
    }
}

TEST(CodePage, NamesCharacters)
{
    EXPECT_EQ(DescribeCharacter(u"a\u03A9", 1), u"'\u03A9' (U+03A9)"_s);
    EXPECT_EQ(DescribeCharacter(u"\U0001F600", 0), u"'\U0001F600' (U+1F600)"_s);
    EXPECT_EQ(DescribeCharacter(u"\u000B", 0), u"U+000B"_s);
    const char16_t half[] = {0xD83D, 0};
    EXPECT_EQ(DescribeCharacter(half, 0), u"U+D83D"_s) << "half a pair alone cannot be shown";
}
