#include "palmtools/build_prc/database_name.h"

#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

std::string NameOrError(std::string_view given)
{
    const auto name = DatabaseNameOf(given);
    return name ? *name : name.error().text;
}

TEST(DatabaseName, IsTakenAsItIsUnlessItIsUtf8)
{
    const struct {
        const char *what;
        std::string given, name;
    } rows[] = {
        {"ASCII", "Form~1;$&'", "Form~1;$&'"},
        {"empty", "", ""},
        {"a letter of windows-1252", "caf\xE9", "caf\xE9"},
        {"broken off", "a\xC3", "a\xC3"},
        {"a byte that continues nothing", "\x80", "\x80"},
        {"no continuation", "\xC3(", "\xC3("},
        {"longer than needed", "\xC0\xA9", "\xC0\xA9"},
        {"longer than needed, three bytes", "\xE0\x83\xA9", "\xE0\x83\xA9"},
        {"longer than needed, four bytes", "\xF0\x80\x83\xA9", "\xF0\x80\x83\xA9"},
        {"the first half of a pair", "\xED\xA0\x80", "\xED\xA0\x80"},
        {"the last half of a pair", "\xED\xBF\xBF", "\xED\xBF\xBF"},
        {"above the last character", "\xF4\x90\x80\x80", "\xF4\x90\x80\x80"},
        {"no lead byte", "\xF8\x88\x80\x80\x80", "\xF8\x88\x80\x80\x80"},
        {"UTF-8 in part only", "\xC3\xA9\xE9", "\xC3\xA9\xE9"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(NameOrError(row.given), row.name);
    }
}

TEST(DatabaseName, IsConvertedFromUtf8)
{
    const struct {
        const char *what;
        std::string given, name;
    } rows[] = {
        {"letters", "caf\xC3\xA9 \xC3\xBF", "caf\xE9 \xFF"},
        {"first above the controls", "\xC2\xA0", "\xA0"},
        {"euro", "\xE2\x82\xAC", "\x80"},
        {"dots, dash and trade mark", "\xE2\x80\xA6\xE2\x80\x93\xE2\x84\xA2", "\x85\x96\x99"},
        {"outer letters", "\xC5\xA0\xC5\xBE\xC5\xB8\xC6\x92", "\x8A\x9E\x9F\x83"},
        {"the other outer letters", "\xC5\x92\xC5\xBD\xC5\xA1\xC5\x93", "\x8C\x8E\x9A\x9C"},
        {"accents that stand alone", "\xCB\x86\xCB\x9C", "\x88\x98"},
        {"the five unassigned bytes", "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D",
         "\x81\x8D\x8F\x90\x9D"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(NameOrError(row.given), row.name);
    }
}

/// A character from U+0800 to U+FFFF in UTF-8.
std::string Utf8(char32_t character)
{
    std::string bytes;
    for (const char32_t byte :
         {0xE0 | character >> 12, 0x80 | (character >> 6 & 0x3F), 0x80 | (character & 0x3F)})
        bytes += static_cast<char>(static_cast<unsigned char>(byte));
    return bytes;
}

TEST(DatabaseName, HasTheBytesOfThePunctuation)
{
    constexpr struct {
        char32_t character;
        unsigned char byte;
    } rows[] = {{0x20AC, 0x80}, {0x201A, 0x82}, {0x201E, 0x84}, {0x2026, 0x85}, {0x2020, 0x86},
                {0x2021, 0x87}, {0x2030, 0x89}, {0x2039, 0x8B}, {0x2018, 0x91}, {0x2019, 0x92},
                {0x201C, 0x93}, {0x201D, 0x94}, {0x2022, 0x95}, {0x2013, 0x96}, {0x2014, 0x97},
                {0x2122, 0x99}, {0x203A, 0x9B}};
    for (const auto &row : rows)
        EXPECT_EQ(NameOrError(Utf8(row.character)), std::string(1, static_cast<char>(row.byte)));
}

TEST(DatabaseName, IsRefusedWithTheCharacterThatIsLacking)
{
    const std::string lacking = "the database name has a character that the handheld lacks: ";
    const struct {
        const char *what, *given, *character;
    } rows[] = {
        {"Cyrillic", "caf\xC3\xA9 \xD0\x96", "U+0416"},
        {"a control that windows-1252 gives away", "\xC2\x80", "U+0080"},
        {"the next letter", "\xC4\x80", "U+0100"},
        {"three bytes", "\xE2\x82\xAD", "U+20AD"},
        {"the replacement character", "\xEF\xBF\xBD", "U+FFFD"},
        {"the first of three bytes", "\xE0\xA0\x80", "U+0800"},
        {"the last before the halves of pairs", "\xED\x9F\xBF", "U+D7FF"},
        {"the first behind them", "\xEE\x80\x80", "U+E000"},
        {"the first of four bytes", "\xF0\x90\x80\x80", "U+10000"},
        {"another lead of four bytes", "\xF1\x80\x80\x80", "U+40000"},
        {"beyond 16 bits", "\xF0\x9F\x90\xA6", "U+1F426"},
        {"the last one", "\xF4\x8F\xBF\xBF", "U+10FFFF"},
        {"the first of two is told", "\xD0\x96\xC4\x80", "U+0416"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(NameOrError(row.given), lacking + row.character);
    }
}

TEST(DatabaseName, HasAtMost31Bytes)
{
    const auto tooLong = [](int size) {
        return "the database name has " + std::to_string(size) + " bytes, more than 31";
    };
    EXPECT_EQ(NameOrError(std::string(31, 'a')), std::string(31, 'a'));
    EXPECT_EQ(NameOrError(std::string(32, 'a')), tooLong(32));
    EXPECT_EQ(NameOrError(Repeated("\xC3\xA9", 31)), std::string(31, '\xE9'));
    EXPECT_EQ(NameOrError(Repeated("\xC3\xA9", 32)), tooLong(32));
    EXPECT_EQ(NameOrError(Repeated("\xE9", 32)), tooLong(32));
}

} // namespace
} // namespace palmtools
