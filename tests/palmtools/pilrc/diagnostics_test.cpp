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

} // namespace
} // namespace palmtools
