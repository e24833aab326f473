#include "editing/built_in_names.h"
#include "ui/questions/item_list_desk.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(ItemListEditor, OffersStatesAndCountriesForPulldownListsAlone)
{
    Desk desk(wizard, u"Checkboxes"_s);
    EXPECT_FALSE(desk.Button(u"cmd_AddState"_s)->isVisible());
    EXPECT_FALSE(desk.Button(u"cmd_AddCountry"_s)->isVisible());
    EXPECT_TRUE(desk.Button(u"cmd_Clear"_s)->isVisible());
    EXPECT_TRUE(desk.Button(u"cmd_sort"_s)->isVisible());
    desk.editor.SetType(u"Pulldown List"_s);
    EXPECT_TRUE(desk.Button(u"cmd_AddState"_s)->isVisible());
    EXPECT_TRUE(desk.Button(u"cmd_AddCountry"_s)->isVisible());
}

TEST(ItemListEditor, AddsStatesOnceAndNoCountriesBeyondTheLimit)
{
    Desk desk(wizard);
    const PromptScript prompts({u"OK"_s});
    desk.editor.SetItems({u"Mine"_s, u"Ohio"_s});
    desk.Press(u"cmd_AddState"_s);
    EXPECT_EQ(desk.Shown().size(), 52);
    EXPECT_EQ(desk.Shown().first(3), (QStringList{u"Mine"_s, u"Ohio"_s, u"Alabama"_s}));
    desk.Press(u"cmd_AddState"_s);
    EXPECT_EQ(desk.Shown().size(), 52);
    EXPECT_EQ(Texts(prompts), QStringList());
    desk.Press(u"cmd_AddCountry"_s);
    EXPECT_EQ(Texts(prompts), QStringList{tooManyItems});
    EXPECT_EQ(desk.Shown().size(), 52);
}

TEST(ItemListEditor, AddsTheCountriesInTheirOrder)
{
    const Desk desk(dialog);
    desk.Press(u"cmd_AddCountry"_s);
    EXPECT_EQ(desk.Shown(), CountryNames());
}

TEST(ItemListEditor, AddsWithoutLosingTheSelection)
{
    Desk desk(wizard);
    desk.editor.SetItems({u"a"_s, u"b"_s});
    desk.Pick(0);
    const PromptScript prompts({u"c"_s});
    desk.Press(desk.names.add);
    EXPECT_EQ(prompts.questions(), QStringList{anItem});
    desk.Press(u"cmd_AddState"_s);
    EXPECT_EQ(desk.Shown().size(), 54);
    EXPECT_EQ(desk.Selected(), QStringList{u"a"_s});
    EXPECT_EQ(desk.Current(), u"a"_s);
}

} // namespace
