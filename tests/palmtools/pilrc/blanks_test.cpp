#include "palmtools/pilrc/blanks.h"

#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

/// What is left after the blanks, and the line it stands on; or "LINE error TEXT".
std::string AfterBlanks(std::string_view script)
{
    Warnings warnings;
    ScriptCursor cursor(script);
    try {
        TakeBlanks(cursor, warnings);
    } catch (const ScriptError &error) {
        return std::to_string(error.line()) + " error " + error.what();
    }
    return std::to_string(cursor.line()) + " " + std::string(cursor.rest());
}

TEST(Blanks, AreAllThatStandsBetweenWords)
{
    const struct {
        const char *what;
        std::string script, rest;
    } rows[] = {
        {"nothing", "", "1 "},
        {"none", "a ", "1 a "},
        {"blanks and tabs", " \t \ta", "1 a"},
        {"line ends of every kind", "\n\r\n\ra", "4 a"},
        {"a form feed is none", "\f", "1 \f"},
        {"a comment to the end of the line", "// b\n a", "2 a"},
        {"a comment over lines", "/* b\n\r\n c */ a", "3 a"},
        {"one after the other", "/**//* */ // b\r\t/* c */a", "2 a"},
        {"a slash alone is none", "/ /", "1 / /"},
        {"nor what closes a comment", "*/", "1 */"},
        {"an inner comment is closed on its own", "/* /* */ a */ b", "1 b"},
        {"a comment that is not closed", "\n/* b\n", "2 error the comment is not closed"},
        {"a zero byte", std::string("/*\n\0", 4), "2 error NUL byte in the script"},
        {"a zero byte in front of the end of the line", std::string("//\0\n", 4),
         "1 error NUL byte in the script"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(AfterBlanks(row.script), row.rest);
    }
}

TEST(Blanks, WarnWhereACommentBeginsInsideAnother)
{
    Warnings warnings;
    const std::string_view script = "/*\n/* */\n\n /* */ */";
    ScriptCursor cursor(script);
    TakeBlanks(cursor, warnings);
    ASSERT_EQ(warnings.kept().size(), 2u);
    EXPECT_EQ(warnings.kept()[0].line, 2);
    EXPECT_EQ(warnings.kept()[1].line, 4);
    EXPECT_EQ(warnings.kept()[1].text, "comment inside a comment");
    EXPECT_EQ(warnings.kept()[1].severity, Severity::warning);
}

TEST(Blanks, NestAsDeepAsTheyLike)
{
    const std::string deep = Repeated("/*", 100000);
    EXPECT_EQ(AfterBlanks(deep), "1 error the comment is not closed");
    EXPECT_EQ(AfterBlanks(deep + Repeated("*/", 100000) + "a"), "1 a");
}

} // namespace
} // namespace palmtools
