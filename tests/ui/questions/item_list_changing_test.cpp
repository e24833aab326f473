#include "ui/questions/item_list_desk.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(ItemListEditor, RemovesEveryEntryThatIsSelected)
{
    Desk desk(wizard);
    desk.editor.SetItems({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s});
    const PromptScript prompts({u"OK"_s});
    desk.Press(desk.names.remove);
    EXPECT_EQ(Texts(prompts), QStringList{u"Please select an item to delete."_s});

    desk.Pick(1);
    desk.Pick(2, Qt::ControlModifier);
    desk.Pick(4, Qt::ControlModifier);
    desk.Press(desk.names.remove);
    EXPECT_EQ(desk.Shown(), (QStringList{u"a"_s, u"d"_s}));
    EXPECT_EQ(desk.Selected(), QStringList());
    EXPECT_EQ(desk.Current(), u"d"_s) << "keys go on where the entries were";
    EXPECT_EQ(prompts.boxes().size(), 1u);
}

TEST(ItemListEditor, MovesAnEntryAndItsSelectionWithIt)
{
    Desk desk(dialog);
    desk.editor.SetItems({u"a"_s, u"b"_s, u"c"_s});
    const PromptScript prompts;
    desk.Pick(2);
    desk.Press(desk.names.up);
    EXPECT_EQ(desk.Shown(), (QStringList{u"a"_s, u"c"_s, u"b"_s}));
    EXPECT_EQ(desk.Selected(), QStringList{u"c"_s});
    EXPECT_EQ(desk.Current(), u"c"_s);
    desk.Press(desk.names.up);
    desk.Press(desk.names.up);
    EXPECT_EQ(desk.Shown(), (QStringList{u"c"_s, u"a"_s, u"b"_s}));
    desk.Press(desk.names.down);
    desk.Press(desk.names.down);
    desk.Press(desk.names.down);
    EXPECT_EQ(desk.Shown(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(desk.Selected(), QStringList{u"c"_s});
    EXPECT_TRUE(prompts.boxes().empty());
}

TEST(ItemListEditor, MovesNothingUnlessOneEntryIsSelected)
{
    Desk desk(wizard);
    desk.editor.SetItems({u"a"_s, u"b"_s, u"c"_s});
    const PromptScript prompts({u"OK"_s, u"OK"_s, u"OK"_s, u"OK"_s});
    desk.Press(desk.names.up);
    desk.Press(desk.names.down);
    desk.Pick(1);
    desk.Pick(2, Qt::ShiftModifier);
    desk.Press(desk.names.up);
    desk.Press(desk.names.down);
    const QString none = u"Please select a question."_s;
    const QString several = u"Please select only one item."_s;
    EXPECT_EQ(Texts(prompts), (QStringList{none, none, several, several}));
    EXPECT_EQ(desk.Shown(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(desk.Selected(), (QStringList{u"b"_s, u"c"_s}));
}

TEST(ItemListEditor, ClearsOnlyWhenTheUserIsSure)
{
    Desk desk(wizard);
    const PromptScript prompts({u"No"_s, u""_s, u"Yes"_s});
    desk.Press(u"cmd_Clear"_s);
    EXPECT_TRUE(prompts.boxes().empty()) << "there was nothing to clear";

    desk.editor.SetItems({u"a"_s});
    desk.Press(u"cmd_Clear"_s);
    desk.Press(u"cmd_Clear"_s);
    EXPECT_EQ(desk.Shown(), QStringList{u"a"_s});
    desk.Press(u"cmd_Clear"_s);
    EXPECT_EQ(desk.Shown(), QStringList());
    EXPECT_EQ(Texts(prompts), QStringList(3, u"Are you sure you want to delete all the items?"_s));
    EXPECT_EQ(prompts.boxes().front().defaultButton, u"No"_s);
}

TEST(ItemListEditor, SortsUpAndDownInTurn)
{
    Desk desk(dialog);
    desk.editor.SetItems({u"apple"_s, u"Zebra"_s, u"mole"_s});
    desk.Pick(1);
    const QStringList ascending = {u"Zebra"_s, u"apple"_s, u"mole"_s};
    const QStringList descending = {u"mole"_s, u"apple"_s, u"Zebra"_s};
    desk.Press(u"cmd_sort"_s);
    EXPECT_EQ(desk.Shown(), ascending);
    EXPECT_EQ(desk.Selected(), QStringList());
    desk.Press(u"cmd_sort"_s);
    EXPECT_EQ(desk.Shown(), descending);
    desk.editor.SetItems(descending);
    desk.Press(u"cmd_sort"_s);
    EXPECT_EQ(desk.Shown(), ascending);
}

} // namespace
