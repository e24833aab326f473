#include "palmtools/common/tool_texts.h"

#include <gtest/gtest.h>

#include <sstream>

namespace palmtools {
namespace {

struct Answer {
    bool wasGiven;
    std::string text;
};

Answer AnswerTo(Wish wish)
{
    std::ostringstream out;
    const bool wasGiven = AnswerWish(wish, {"tool", "usage: tool\n", "Does work.\n"}, out);
    return {wasGiven, out.str()};
}

TEST(ToolTexts, AnswerAWishForHelp)
{
    EXPECT_TRUE(AnswerTo(Wish::help).wasGiven);
    EXPECT_EQ(AnswerTo(Wish::help).text, "usage: tool\nDoes work.\n");
}

TEST(ToolTexts, AnswerAWishForTheVersion)
{
    const std::string text = AnswerTo(Wish::version).text;
    EXPECT_TRUE(AnswerTo(Wish::version).wasGiven);
    EXPECT_EQ(text.substr(0, 5), "tool ");
    EXPECT_NE(text.find_first_of("0123456789"), text.npos);
    EXPECT_EQ(text.substr(text.find('(')), "(Vellumo Designer)\n");
}

TEST(ToolTexts, LeaveWorkToTheTool)
{
    EXPECT_FALSE(AnswerTo(Wish::work).wasGiven);
    EXPECT_EQ(AnswerTo(Wish::work).text, "");
}

} // namespace
} // namespace palmtools
