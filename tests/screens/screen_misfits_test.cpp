#include "screens/screen_misfits.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(ScreenMisfits, ATextThatFitsHasNone)
{
    EXPECT_EQ(MisfitsOf({"Crew", "How many?", {"one", "two"}}, u"Checkboxes"_s), QStringList());
    EXPECT_EQ(MisfitsOf({}, u"no type"_s), QStringList());
}

TEST(ScreenMisfits, EachTextIsNamed)
{
    const QByteArray wide(20, 'W'); // 160 and more pixels in either font
    const QStringList misfits = MisfitsOf({wide, wide + "\x9E", {"a", wide}}, u"Pulldown List"_s);
    ASSERT_EQ(misfits.size(), 4);
    EXPECT_TRUE(misfits[0].startsWith(u"Title: it is ")) << misfits[0].toStdString();
    EXPECT_TRUE(misfits[1].startsWith(u"Question: it is ")) << misfits[1].toStdString();
    EXPECT_EQ(misfits[2], u"Question: the handheld has no Z or z with a caron and shows another "
                          "sign or none."_s);
    EXPECT_TRUE(misfits[3].startsWith(u"Item 2: it is ")) << misfits[3].toStdString();
    EXPECT_TRUE(misfits[3].endsWith(u"; the opened list leaves the screen."));
}

TEST(ScreenMisfits, TheTypeDecidesTheRoom)
{
    const FormTexts two = {"T", "a\nb", {}}, three = {"T", "a\nb\nc", {}};
    EXPECT_EQ(MisfitsOf(two, u"Text"_s).size(), 0);
    EXPECT_EQ(MisfitsOf(two, u"Notes"_s).size(), 1);
    EXPECT_EQ(MisfitsOf(three, u"Text"_s).size(), 1);
    EXPECT_EQ(MisfitsOf(three, u"Signature"_s).size(), 0);
    const FormTexts caption = {"T", "?", {QByteArray(15, '\x80') + 'i'}}; // 122 pixels
    EXPECT_EQ(MisfitsOf(caption, u"Pulldown List"_s).size(), 0);
    EXPECT_EQ(MisfitsOf(caption, u"Checkboxes"_s),
              QStringList{u"Item 1: it is 2 pixels too wide and stops after "
                          "\"€€€€€€€€€€€€€€€\"; the rest is cut off."_s});
}
