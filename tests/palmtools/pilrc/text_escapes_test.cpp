#include "palmtools/pilrc/text_escapes.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

using namespace std::string_literals;

const struct {
    const char *what;
    std::string written, text;
} escapes[] = {
    {"plain", "abc", "abc"},
    {"nothing", "", ""},
    {"tabs and high bytes as they are", "a\tb\x85\xFF", "a\tb\x85\xFF"},
    {"bell", R"(\a)", "\x07"},
    {"backspace", R"(\b)", "\x08"},
    {"tab", R"(\t)", "\x09"},
    {"line feed", R"(\n)", "\x0A"},
    {"vertical tab", R"(\v)", "\x0B"},
    {"form feed", R"(\f)", "\x0C"},
    {"carriage return", R"(\r)", "\x0D"},
    {"escape", R"(\e)", "\x1B"},
    {"code 26", R"(\z)", "\x1A"},
    {"an underscore vanishes", R"(a\_b)", "ab"},
    {"upper case letters stand for themselves", R"(\A\N\E\Z)", "ANEZ"},
    {"quotes and backslashes", R"(\"\\\'\?)", "\"\\'?"},
    {"no octal digits", R"(\8\9)", "89"},
    {"any other", R"(\q\%\ )", "q% "},
    {"a high byte", "\\\xE4", "\xE4"},
    {"one octal digit", R"(\7x)", "\x07x"},
    {"two octal digits", R"(\61x)", "1x"},
    {"three octal digits", R"(\101)", "A"},
    {"a fourth is a character", R"(\1012)", "A2"},
    {"a digit that is not octal ends it", R"(\18)",
     "\x01"
     "8"},
    {"low bits only", R"(\777\401)", "\xFF\x01"},
    {"largest byte", R"(\377)", "\xFF"},
    {"octal zero is nothing", R"(a\0b\000c)", "abc"},
    {"256 drops the rest", R"(ab\400cd)", "ab"},
    {"256 at the beginning", R"(\400cd)", ""},
    {"40 and another digit are not 256", R"(\40x0)", " x0"},
    {"hexadecimal", R"(\x41)", "A"},
    {"upper case x and digits", R"(\XeF\xEf)", "\xEF\xEF"},
    {"taken while below 256", R"(\x41B)", "AB"},
    {"leading zeros do not count", R"(\x00041)", "A"},
    {"hexadecimal zero is nothing", R"(a\x0g\x00)", "ag"},
    {"no hexadecimal digit", R"(\xzz\x)", "zz"},
    {"largest hexadecimal", R"(\xFF0)",
     "\xFF"
     "0"},
    {"three dots, percent and number signs", "...%d#", "...%d#"},
};

TEST(TextEscapes, StandForTheirBytes)
{
    for (const auto &row : escapes) {
        SCOPED_TRACE(row.what);
        std::string text;
        AppendUnescaped(row.written, text);
        EXPECT_EQ(text, row.text);
    }
}

TEST(TextEscapes, AreAppended)
{
    std::string text = "before ";
    AppendUnescaped(R"(a\400b)", text);
    AppendUnescaped("c", text);
    EXPECT_EQ(text, "before ac");
}

} // namespace
} // namespace palmtools
