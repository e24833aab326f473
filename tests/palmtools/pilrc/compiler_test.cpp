#include "palmtools/pilrc/compiler.h"

#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

TEST(Compiler, GivesTheResourcesOfAScript)
{
    const Compilation compilation = CompileScript("VERSION \"1\" HEX \"ab\" 7 1 2");
    EXPECT_FALSE(compilation.failed);
    EXPECT_TRUE(compilation.diagnostics.empty());
    ASSERT_EQ(compilation.resources.size(), 2u);
    EXPECT_EQ(compilation.resources[0].type, FourBytesOf("tver"));
    EXPECT_EQ(compilation.resources[0].number, 1);
    EXPECT_EQ(compilation.resources[0].bytes, FromHex("3100"));
    EXPECT_EQ(compilation.resources[1].type, FourBytesOf("ab"));
    EXPECT_EQ(compilation.resources[1].number, 7);
    EXPECT_EQ(compilation.resources[1].bytes, FromHex("0102"));
}

TEST(Compiler, GivesNoResourcesAfterAnError)
{
    const Compilation compilation = CompileScript("VERSION \"1\"\n/*/**/*/\nVERSION 5\n\n6");
    EXPECT_TRUE(compilation.failed);
    EXPECT_TRUE(compilation.resources.empty());
    ASSERT_EQ(compilation.diagnostics.size(), 2u);
    EXPECT_EQ(compilation.diagnostics[0].severity, Severity::warning);
    EXPECT_EQ(compilation.diagnostics[0].line, 2);
    EXPECT_EQ(compilation.diagnostics[1].severity, Severity::error);
    EXPECT_EQ(compilation.diagnostics[1].line, 5);
}

TEST(Compiler, CountsTheWarningsBeyondTheFirstHundred)
{
    const Compilation compilation =
        CompileScript("/*" + Repeated("/*", 1000) + Repeated("*/", 1001) + "\n5");
    EXPECT_TRUE(compilation.failed);
    ASSERT_EQ(compilation.diagnostics.size(), 101u);
    EXPECT_EQ(compilation.diagnostics[99].severity, Severity::warning);
    EXPECT_EQ(compilation.diagnostics[100].severity, Severity::error);
    EXPECT_EQ(compilation.diagnostics[100].line, 2);
    EXPECT_EQ(compilation.moreWarnings, 900u);
}

TEST(Compiler, LetsTheScriptGo)
{
    Compilation compilation;
    {
        const std::string script =
            "FORM 1 0 0 9 9 BEGIN TITLE \"a title\" END\nHEX \"abcd\" 1 \"x\"";
        compilation = CompileScript(script);
    }
    ASSERT_EQ(compilation.resources.size(), 2u);
    EXPECT_EQ(compilation.resources[0].bytes.substr(86), std::string("a title\0", 8));
    EXPECT_EQ(compilation.resources[1].bytes, "x");
}

TEST(Compiler, LeavesTheBytesOfTextsAsTheyAre)
{
    std::string text;
    for (int code = 0x20; code < 256; ++code) {
        if (code != '"' && code != '\\')
            text += static_cast<char>(code);
    }
    const Compilation compilation = CompileScript("VERSION " + Quoted(text));
    ASSERT_EQ(compilation.resources.size(), 1u);
    EXPECT_EQ(compilation.resources[0].bytes, text + '\0');
}

TEST(Compiler, KnowsStatementsInAnyCase)
{
    for (const std::string script : {"version \"1\"", "Version \"1\"", "VERSION \"1\""})
        EXPECT_FALSE(CompileScript(script).failed) << script;
    EXPECT_TRUE(CompileScript("VERSIONS \"1\"").failed);
}

} // namespace
} // namespace palmtools
