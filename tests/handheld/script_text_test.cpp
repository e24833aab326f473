#include "handheld/script_text.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace vellumo;

TEST(ScriptText, StandsForItselfWithoutABackslash)
{
    EXPECT_EQ(InterpretScriptText(""), "");
    EXPECT_EQ(InterpretScriptText("C10; & $ ' , + % # // /* \x85..."),
              "C10; & $ ' , + % # // /* \x85...");
    EXPECT_EQ(InterpretScriptText("a\tb\x01\xFF"), "a\tb\x01\xFF");
    EXPECT_EQ(InterpretScriptText("say \"hi\""), "say \"hi\"");
}

TEST(ScriptText, InterpretsEscapes)
{
    const struct {
        const char *what;
        QByteArray written, meant;
    } rows[] = {
        {"letters", R"(\a\b\t\n\v\f\r\e\z)", "\x07\x08\x09\x0A\x0B\x0C\x0D\x1B\x1A"},
        {"letters count in lower case", R"(\A\B\T\N\V\F\R\E\Z)", "ABTNVFREZ"},
        {"an underscore", R"(a\_b)", "ab"},
        {"signs stand for themselves", R"(\"\\\'\?\%\q\8\9)", "\"\\'?%q89"},
        {"a byte above 127", "\\\xE9", "\xE9"},
        {"a backslash at the end", R"(ab\)", "ab"},
        {"two at the end", R"(ab\\)", "ab\\"},
        {"what follows a doubled one", R"(\\n)", "\\n"},

        {"one octal digit", R"(\7x)", "\x07x"},
        {"two, ended by a digit that is none", R"(\128)", "\n8"},
        {"three", R"(\101\377)", "A\xFF"},
        {"never four", R"(\1012)", "A2"},
        {"the low 8 bits count", R"(\777\501\401)", "\xFF\x41\x01"},
        {"octal zero", R"(a\0b\00c\000d)", "abcd"},
        {"a fourth digit after zeros", R"(\0007)", "7"},
        {"256 ends the text", R"(cut\400lost\n)", "cut"},
        {"255 does not", R"(cut\3777)",
         "cut\xFF"
         "7"},

        {"hexadecimal digits", R"(\x41\X41\xe9\xE9)", "AA\xE9\xE9"},
        {"below 256", R"(\x412\x41B\xff0\x100)",
         "A2AB\xFF"
         "0\x10"
         "0"},
        {"any number of zeros", R"(\x00041)", "A"},
        {"hexadecimal zero", R"(a\x0b\x00)", "a\x0B"},
        {"no digit", R"(a\xg\Xzz\x)", "agzz"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(InterpretScriptText(row.written), row.meant);
    }
}

TEST(ScriptText, EscapesQuotes)
{
    const struct {
        QByteArray text, escaped;
    } rows[] = {
        {R"()", R"()"},
        {R"(say "hi")", R"(say \"hi\")"},
        {R"(say \"hi\")", R"(say \"hi\")"},
        {R"(a\\\\"b)", R"(a\"b)"},
        {R"("")", R"(\"\")"},
        {R"(\)", R"(\)"},
        {R"(C:\new \\ "x")", R"(C:\new \\ \"x\")"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(WithEscapedQuotes(row.text), row.escaped);
    EXPECT_EQ(WithEscapedQuotes(QByteArray(1000000, '\\') + '"'), "\\\"");
}

TEST(ScriptText, SplitsItemsAtEveryComma)
{
    EXPECT_EQ(InterpretItems(""), QList<QByteArray>());
    EXPECT_EQ(InterpretItems("a"), QList<QByteArray>{"a"});
    EXPECT_EQ(InterpretItems("a, b,,c\\,d,"), (QList<QByteArray>{"a", " b", "", "c", "d", ""}));
}
