#include "ui/support/prompt_script.h"

#include "ui/common/prompts.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

// What a test that looks away would be told.

TEST(PromptScript, FailsOnABoxThatNobodyExpected)
{
    EXPECT_NONFATAL_FAILURE(
        {
            const PromptScript script({u"OK"_s});
            ShowInformation(nullptr, u"One"_s);
            ShowInformation(nullptr, u"Two"_s);
            EXPECT_EQ(script.boxes().size(), 2u);
        },
        "nobody expected: Two");
    EXPECT_NONFATAL_FAILURE(
        {
            const PromptScript script;
            AskText(nullptr, u"New Item"_s, u"Which?"_s);
            EXPECT_EQ(script.questions().size(), 1);
        },
        "nobody expected: Which?");
}

TEST(PromptScript, FailsOnAnAnswerThatNobodyAskedFor)
{
    EXPECT_NONFATAL_FAILURE({ const PromptScript script({u"Yes"_s}); },
                            "nobody asked for the answer 'Yes'");
}

TEST(PromptScript, FailsWhereNobodyLookedAtWhatWasShown)
{
    EXPECT_NONFATAL_FAILURE(
        {
            const PromptScript script({u"OK"_s, u"OK"_s});
            ShowInformation(nullptr, u"One"_s);
            EXPECT_EQ(script.boxes().size(), 1u);
            ShowInformation(nullptr, u"Two"_s);
        },
        "nobody looked at: Two");
    EXPECT_NONFATAL_FAILURE(
        {
            const PromptScript script({u"Red"_s});
            AskText(nullptr, u"New Item"_s, u"Which?"_s);
        },
        "nobody looked at: Which?");
}

TEST(PromptScript, FailsOnAButtonThatIsNotThere)
{
    EXPECT_NONFATAL_FAILURE(
        {
            const PromptScript script({u"Yes"_s});
            ShowInformation(nullptr, u"One"_s);
            EXPECT_EQ(script.boxes().size(), 1u);
        },
        "no button Yes below: One");
}
