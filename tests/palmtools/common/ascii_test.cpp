#include "palmtools/common/ascii.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

TEST(Ascii, RaisesTheLettersOfAsciiOnly)
{
    for (int code = 0; code < 256; ++code) {
        const char c = static_cast<char>(code);
        const bool isSmall = code >= 'a' && code <= 'z';
        EXPECT_EQ(UpperCase(c), static_cast<char>(isSmall ? code - 0x20 : code)) << code;
    }
}

TEST(Ascii, KnowsTheDigitsOfEachBase)
{
    const struct {
        char digit;
        int octal, decimal, hexadecimal;
    } rows[] = {
        {'0', 0, 0, 0},     {'7', 7, 7, 7},       {'8', -1, 8, 8},   {'9', -1, 9, 9},
        {'a', -1, -1, 10},  {'F', -1, -1, 15},    {'g', -1, -1, -1}, {'G', -1, -1, -1},
        {'/', -1, -1, -1},  {':', -1, -1, -1},    {'@', -1, -1, -1}, {'`', -1, -1, -1},
        {'\0', -1, -1, -1}, {'\xB2', -1, -1, -1},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.digit);
        EXPECT_EQ(DigitValue(row.digit, 8), row.octal);
        EXPECT_EQ(DigitValue(row.digit, 10), row.decimal);
        EXPECT_EQ(DigitValue(row.digit, 16), row.hexadecimal);
    }
}

TEST(Ascii, ComparesWithoutCase)
{
    const struct {
        const char *what, *left, *right;
        bool equal;
    } rows[] = {
        {"either case", "aBc_1", "AbC_1", true},
        {"nothing", "", "", true},
        {"another letter", "abc", "abd", false},
        {"the beginning", "abc", "ab", false},
        {"nothing and something", "", "a", false},
        {"letters of the code page keep their case", "\xE4", "\xC4", false},
        {"signs that differ in the same bit", "[", "{", false},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(EqualIgnoringCase(row.left, row.right), row.equal);
        EXPECT_EQ(EqualIgnoringCase(row.right, row.left), row.equal);
    }
}

TEST(Ascii, FindsEndings)
{
    EXPECT_TRUE(EndsIgnoringCase("a.PRC", ".prc"));
    EXPECT_TRUE(EndsIgnoringCase(".prc", ".PrC"));
    EXPECT_TRUE(EndsIgnoringCase("a", ""));
    EXPECT_FALSE(EndsIgnoringCase("prc", ".prc"));
    EXPECT_FALSE(EndsIgnoringCase("a.prc ", ".prc"));
    EXPECT_FALSE(EndsIgnoringCase("", ".prc"));
}

} // namespace
} // namespace palmtools
