#include "palmtools/pilrc/diagnostics.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

TEST(Diagnostics, AreShownInEitherStyle)
{
    const Diagnostic error = {Severity::error, 12, "the script is empty"};
    const Diagnostic warning = {Severity::warning, 3, "comment inside a comment"};
    EXPECT_EQ(MessageOf(error, "a/b.rcp", MessageStyle::gnu),
              "a/b.rcp:12: error: the script is empty\n");
    EXPECT_EQ(MessageOf(warning, "b.rcp", MessageStyle::gnu),
              "b.rcp:3: warning: comment inside a comment\n");
    EXPECT_EQ(MessageOf(error, "a/b.rcp", MessageStyle::microsoft),
              "a/b.rcp(12): error : the script is empty\n");
    EXPECT_EQ(MessageOf(warning, "b.rcp", MessageStyle::microsoft),
              "b.rcp(3): warning : comment inside a comment\n");
}

TEST(Diagnostics, KeepTheFirstHundredWarnings)
{
    Warnings warnings;
    for (int line = 1; line <= 100; ++line)
        warnings.Add(line, "a");
    EXPECT_EQ(warnings.kept().size(), 100u);
    EXPECT_EQ(warnings.more(), 0u);
    for (int line = 101; line <= 350; ++line)
        warnings.Add(line, "b");
    ASSERT_EQ(warnings.kept().size(), 100u);
    EXPECT_EQ(warnings.kept().back().line, 100);
    EXPECT_EQ(warnings.more(), 250u);
}

TEST(Diagnostics, CountTheWarningsThatAreNotShown)
{
    EXPECT_EQ(MessageOfMore(0), "");
    EXPECT_EQ(MessageOfMore(1), "pilrc: 1 more warning is not shown\n");
    EXPECT_EQ(MessageOfMore(250), "pilrc: 250 more warnings are not shown\n");
}

} // namespace
} // namespace palmtools
