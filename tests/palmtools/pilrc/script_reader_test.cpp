#include "palmtools/pilrc/script_reader.h"

#include <gtest/gtest.h>

#include <functional>

namespace palmtools {
namespace {

/// A reader with its script and its warnings.
struct Reading {
    explicit Reading(std::string_view script) : words(script, warnings) {}

    Warnings warnings;
    ScriptReader words;
};

/// "LINE TEXT" of the error that the function raises.
std::string ErrorOf(const std::function<void()> &function)
{
    try {
        function();
    } catch (const ScriptError &error) {
        return std::to_string(error.line()) + " " + error.what();
    }
    return "none";
}

TEST(ScriptReader, LooksAtAWordBeforeItIsTaken)
{
    Reading reading("a 5");
    EXPECT_EQ(reading.words.Peek().written, "a");
    EXPECT_EQ(reading.words.Peek().written, "a");
    EXPECT_EQ(reading.words.Take().written, "a");
    EXPECT_TRUE(reading.words.NextIs(WordKind::number));
    EXPECT_EQ(reading.words.Take().value, 5u);
    EXPECT_TRUE(reading.words.NextIs(WordKind::end));
    EXPECT_EQ(reading.words.Take().kind, WordKind::end);
    EXPECT_EQ(reading.words.Take().kind, WordKind::end);
}

TEST(ScriptReader, TakesNamesInAnyCaseAndSigns)
{
    Reading reading("Begin ( \"begin\"");
    EXPECT_FALSE(reading.words.TakeName("end"));
    EXPECT_FALSE(reading.words.TakeName("begins"));
    EXPECT_FALSE(reading.words.TakeSign('('));
    EXPECT_TRUE(reading.words.TakeName("BEGIN"));
    EXPECT_FALSE(reading.words.TakeSign(')'));
    EXPECT_TRUE(reading.words.TakeSign('('));
    EXPECT_FALSE(reading.words.TakeName("\"begin\""));
    EXPECT_TRUE(reading.words.NextIs(WordKind::text));
}

TEST(ScriptReader, FindsTheRowOfTheNextName)
{
    struct Row {
        std::string_view name;
        int value;
    };
    constexpr Row table[] = {{"ONE", 1}, {"TWO", 2}};
    Reading reading("two One three \"one\"");
    ASSERT_TRUE(reading.words.NextIn(table));
    EXPECT_EQ(reading.words.NextIn(table)->value, 2);
    EXPECT_EQ(reading.words.TakeIn(table), &table[1]);
    EXPECT_EQ(reading.words.TakeIn(table), &table[0]);
    EXPECT_EQ(reading.words.TakeIn(table), nullptr);
    EXPECT_EQ(reading.words.Take().written, "three");
    EXPECT_EQ(reading.words.NextIn(table), nullptr);
}

TEST(ScriptReader, FailsWhereAnotherWordIsExpected)
{
    Reading reading("a\n'\n");
    EXPECT_EQ(ErrorOf([&] { reading.words.ExpectName("begin"); }), "1 begin expected, not 'a'");
    EXPECT_EQ(ErrorOf([&] { reading.words.ExpectSign(')'); }), "1 ) expected, not 'a'");
    EXPECT_EQ(ErrorOf([&] { reading.words.FailExpected("text"); }), "1 text expected, not 'a'");
    EXPECT_EQ(reading.words.Take().written, "a");
    EXPECT_EQ(ErrorOf([&] { reading.words.Peek(); }), "2 character ''' does not belong here");
    Reading atEnd("\n\n");
    EXPECT_EQ(ErrorOf([&] { atEnd.words.ExpectName("end"); }), "2 end expected, not 'end of file'");
    Reading tab("\"a\tb\"");
    EXPECT_EQ(ErrorOf([&] { tab.words.ExpectSign('('); }), "1 ( expected, not '\"a\\x09b\"'");
}

TEST(ScriptReader, NamesTheLineOfTheLastWordThatWasRead)
{
    Reading reading("a\nb\nc");
    reading.words.Take();
    reading.words.Warn("taken");
    reading.words.Peek();
    reading.words.Warn("looked at");
    EXPECT_EQ(ErrorOf([&] { reading.words.Fail("failed"); }), "2 failed");
    ASSERT_EQ(reading.warnings.kept().size(), 2u);
    EXPECT_EQ(reading.warnings.kept()[0].line, 1);
    EXPECT_EQ(reading.warnings.kept()[0].text, "taken");
    EXPECT_EQ(reading.warnings.kept()[1].line, 2);
    EXPECT_EQ(reading.warnings.kept()[1].severity, Severity::warning);
}

} // namespace
} // namespace palmtools
