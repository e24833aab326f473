#include "handheld/arriving_text.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(ArrivingText, HasWhatItsEscapesStandFor)
{
    EXPECT_EQ(ArrivingText(u""), u""_s);
    EXPECT_EQ(ArrivingText(u"Crew size"), u"Crew size"_s);
    EXPECT_EQ(ArrivingText(uR"(x\54y)"), u"x,y"_s);
    EXPECT_EQ(ArrivingText(uR"(5\42 pipe)"), u"5\" pipe"_s);
    EXPECT_EQ(ArrivingText(uR"(a\\b\nc)"), u"a\\b\nc"_s);
    EXPECT_EQ(ArrivingText(uR"(\200)"), u"€"_s) << "of windows-1252";
}

TEST(ArrivingText, KeepsTheQuotesOfFreeWording)
{
    EXPECT_EQ(ArrivingWording(uR"(Say "yes"\\no)"), uR"(Say "yes"\no)"_s);
    EXPECT_EQ(ArrivingWording(uR"(Say \\"yes")"), uR"(Say "yes")"_s);
    EXPECT_EQ(ArrivingText(uR"(Say \\"yes")"), uR"(Say \"yes")"_s);
}

TEST(ArrivingText, KeepsACharacterThatTheHandheldLacks)
{
    EXPECT_EQ(ArrivingText(u"Ω\\54\U0001F333\\n"), u"Ω,\U0001F333\n"_s);
    EXPECT_EQ(ArrivingWording(u"\"Ω\""), u"\"Ω\""_s);
    EXPECT_EQ(ArrivingText(u"\\Ω"), u"Ω"_s);
}

TEST(ArrivingItems, AreSplitAtCommas)
{
    EXPECT_EQ(ArrivingItems({u"a,b"_s, u""_s, uR"(c\54d)"_s}),
              (QStringList{u"a"_s, u"b"_s, u""_s, u"c,d"_s}));
    EXPECT_EQ(ArrivingItems({}), QStringList());
    EXPECT_EQ(ArrivingItems({u""_s}), QStringList()) << "an empty whole is no item";
}

} // namespace
