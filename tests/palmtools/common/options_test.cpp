#include "palmtools/common/options.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

/// What came of a command line: each option that was applied, then the plain arguments after a bar,
/// or the error.
std::string Read(const std::vector<std::string> &arguments, NameCase nameCase = NameCase::counts)
{
    std::string told;
    const auto tell = [&](const char *name) {
        return [&told, name](const std::string &value) { told += name + value + ' '; };
    };
    const Option options[] = {
        {"-f", "", false, tell("flag")},
        {"", "--long-flag", false, tell("long flag")},
        {"-v", "", true, tell("value=")},
        {"-b", "--both", true, tell("both=")},
    };
    CommandLine line(arguments);
    const auto wish = ReadOptions(line, options, nameCase);
    if (!wish)
        return wish.error().text;
    if (*wish != Wish::work)
        return *wish == Wish::help ? "help" : "version";
    told += '|';
    while (!line.AtEnd())
        told += line.Take() + ' ';
    return told;
}

TEST(Options, AreReadUpToTheFirstPlainArgument)
{
    const struct {
        const char *what;
        std::vector<std::string> arguments;
        const char *told;
    } rows[] = {
        {"nothing", {}, "|"},
        {"plain arguments", {"a", "-f"}, "|a -f "},
        {"an empty one is plain", {"", "-f"}, "| -f "},
        {"flags", {"-f", "--long-flag", "-f", "a"}, "flag long flag flag |a "},
        {"values", {"-v", "1", "-b", "2", "--both", "3", "a"}, "value=1 both=2 both=3 |a "},
        {"a value that looks like an option",
         {"-v", "--help", "-v", "-v"},
         "value=--help value=-v |"},
        {"a value in the same argument",
         {"--both=x", "--both=", "--both=-f=y"},
         "both=x both= both=-f=y |"},
        {"an empty value", {"-v", ""}, "value= |"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Read(row.arguments), row.told);
    }
}

TEST(Options, AreRefused)
{
    const struct {
        const char *what;
        std::vector<std::string> arguments;
        const char *text;
    } rows[] = {
        {"unknown", {"-f", "-x"}, "unknown option '-x'"},
        {"a lone minus", {"-"}, "unknown option '-'"},
        {"two of them", {"--"}, "unknown option '--'"},
        {"nothing but a value", {"-=x"}, "unknown option '-=x'"},
        {"another case", {"-F"}, "unknown option '-F'"},
        {"a longer name", {"--bothx"}, "unknown option '--bothx'"},
        {"a control character", {"-\n"}, "unknown option '-\\x0A'"},
        {"a flag with a value", {"--long-flag=1"}, "unknown option '--long-flag=1'"},
        {"a short one with a '='", {"-b=1"}, "unknown option '-b=1'"},
        {"a short one and its value", {"-v1"}, "unknown option '-v1'"},
        {"no value", {"-v"}, "option '-v' lacks its argument"},
        {"no value behind a long name", {"--both"}, "option '--both' lacks its argument"},
        {"the first fault counts", {"-x", "-v"}, "unknown option '-x'"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Read(row.arguments), row.text);
    }
}

TEST(Options, MayIgnoreTheCaseOfNames)
{
    EXPECT_EQ(Read({"-F", "--LONG-flag", "-V", "Abc", "--BOTH=Def"}, NameCase::ignored),
              "flag long flag value=Abc both=Def |");
    EXPECT_EQ(Read({"--HELP"}, NameCase::ignored), "help");
    EXPECT_EQ(Read({"--HELP"}), "unknown option '--HELP'");
}

TEST(Options, EndWhereTheToolIsAskedAboutItself)
{
    EXPECT_EQ(Read({"--help"}), "help");
    EXPECT_EQ(Read({"-f", "--version", "-x", "--help"}), "version");
    EXPECT_EQ(Read({"--help", "--version"}), "help");
    EXPECT_EQ(Read({"-x", "--help"}), "unknown option '-x'");
    EXPECT_EQ(Read({"a", "--help"}), "|a --help ");
}

} // namespace
} // namespace palmtools
