#include "ui/questions/item_list_editor.h"

#include "editing/built_in_names.h"
#include "ui/questions/item_list_desk.h"
#include "ui/support/prompt_script.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString tooManyItems = u"Please keep the list to 255 items or less."_s;
const QString tooLong = u"Please keep the item length to 32 characters or less."_s;
const QString quotes = u"Double quotes are not allowed."_s;
const QString exists = u"The item already exists. Please enter a different name."_s;
const QString anItem = u"Please add an item to the List."_s;
const QString theItem = u"Please add the item to the List."_s;

QStringList Numbered(int count)
{
    QStringList items;
    for (int i = 0; i < count; ++i)
        items += u"Item %1"_s.arg(i);
    return items;
}

QStringList Texts(const PromptScript &prompts)
{
    QStringList texts;
    for (const SeenBox &box : prompts.boxes()) {
        texts += box.text;
        EXPECT_EQ(box.title, u"Vellumo Designer"_s);
        EXPECT_TRUE(box.icon == QMessageBox::Warning || box.icon == QMessageBox::Question);
    }
    return texts;
}

TEST(ItemListEditor, NamesItsControlsAsItsWindowSays)
{
    for (const EditorWindow &where : {wizard, dialog}) {
        const Desk desk(where);
        EXPECT_EQ(desk.editor.List()->objectName(), where.names.list);
        EXPECT_EQ(desk.editor.List()->accessibleName(), u"List Items"_s);
        const struct {
            QString name, caption, toolTip;
        } buttons[] = {
            {where.names.add, u"Add"_s, u"Add item"_s},
            {where.names.remove, u"Remove"_s, u"Remove item"_s},
            {where.names.up, u""_s, u"Move item up"_s},
            {where.names.down, u""_s, u"Move item down"_s},
            {u"cmd_AddState"_s, u"States"_s, u"Add states"_s},
            {u"cmd_AddCountry"_s, u"Countries"_s, u"Add countries"_s},
            {u"cmd_Clear"_s, u"Clear"_s, u"Clear items"_s},
            {u"cmd_sort"_s, u"Sort"_s, u"Sort items"_s},
        };
        for (const auto &button : buttons) {
            EXPECT_EQ(desk.Button(button.name)->text(), button.caption);
            EXPECT_EQ(desk.Button(button.name)->toolTip(), button.toolTip);
        }
        for (const QString &name :
             {where.names.add, where.names.remove, where.names.up, where.names.down})
            EXPECT_FALSE(desk.Button(name)->icon().isNull());
        EXPECT_EQ(desk.Button(where.names.up)->accessibleName(), u"Move item up"_s);
        EXPECT_EQ(desk.Button(where.names.down)->accessibleName(), u"Move item down"_s);
    }
}

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

TEST(ItemListEditor, AsksForAnItemWithItsWindowsPrompt)
{
    const struct {
        const EditorWindow &where;
        QString prompt;
    } rows[] = {{wizard, anItem}, {dialog, theItem}};
    for (const auto &row : rows) {
        const Desk desk(row.where);
        const PromptScript prompts({u"  Red "_s});
        desk.Press(desk.names.add);
        EXPECT_EQ(prompts.questions(), QStringList{row.prompt});
        EXPECT_EQ(desk.Shown(), QStringList{u"Red"_s});
        EXPECT_EQ(Texts(prompts), QStringList());
    }
}

TEST(ItemListEditor, RefusesAnItemThatItHas)
{
    const Desk desk(wizard);
    const PromptScript prompts({u" Red "_s, u"Red"_s, u"OK"_s, u"red"_s});
    desk.Press(desk.names.add);
    desk.Press(desk.names.add);
    desk.Press(desk.names.add);
    EXPECT_EQ(Texts(prompts), QStringList{exists});
    EXPECT_EQ(prompts.questions(), QStringList(3, anItem));
    EXPECT_EQ(desk.Shown(), (QStringList{u"Red"_s, u"red"_s}));
}

TEST(ItemListEditor, AsksAgainUntilTheTextFits)
{
    const Desk desk(dialog);
    const QString over(33, u'x');
    const QString fits = u' ' + QString(31, u'x');
    const PromptScript prompts({over, u"OK"_s, u"5\""_s, u"OK"_s, fits});
    desk.Press(desk.names.add);
    EXPECT_EQ(Texts(prompts), (QStringList{tooLong, quotes}));
    EXPECT_EQ(prompts.questions(), (QStringList{theItem, anItem, anItem}));
    EXPECT_EQ(desk.Shown(), QStringList{fits}) << "as typed, with its blank";
}

TEST(ItemListEditor, TrimsTheFirstAnswerBeforeItMeasuresIt)
{
    const Desk desk(wizard);
    const QString longest(32, u'x');
    const PromptScript prompts(
        {u"  "_s + longest + u"  "_s, longest + u"y"_s, u"OK"_s, longest + u' ', u"OK"_s, u"  "_s});
    desk.Press(desk.names.add);
    EXPECT_EQ(desk.Shown(), QStringList{longest});
    desk.Press(desk.names.add);
    EXPECT_EQ(Texts(prompts), (QStringList{tooLong, tooLong})) << "a repeated answer is measured";
    EXPECT_EQ(prompts.questions(), QStringList(4, anItem));
    EXPECT_EQ(desk.Shown(), (QStringList{longest, u"  "_s})) << "and stored as it stands";
}

TEST(ItemListEditor, AddsNothingWhenTheUserGivesUp)
{
    for (const QStringList &answers :
         {QStringList{u""_s}, QStringList{u"   "_s}, QStringList{u"\""_s, u"OK"_s, u""_s}}) {
        const Desk desk(wizard);
        const PromptScript prompts(answers);
        desk.Press(desk.names.add);
        EXPECT_EQ(desk.Shown(), QStringList());
        EXPECT_EQ(Texts(prompts), answers.size() == 3 ? QStringList{quotes} : QStringList());
        EXPECT_EQ(prompts.questions(), QStringList(answers.size() == 3 ? 2 : 1, anItem));
    }
}

TEST(ItemListEditor, AsksForNothingWhenTheListIsFull)
{
    const struct {
        const EditorWindow &where;
        QString type;
        int offered, refused;
        QString message;
    } rows[] = {
        {wizard, u"Pulldown List"_s, 255, 256, tooManyItems},
        {wizard, u"Checkboxes"_s, 32, 33, u"Please keep the Check Box to 32 items or less."_s},
        {dialog, u"Pulldown List"_s, 254, 255, tooManyItems},
        {dialog, u"Checkboxes"_s, 254, 255, tooManyItems},
    };
    for (const auto &row : rows) {
        Desk desk(row.where, row.type);
        desk.editor.SetItems(Numbered(row.offered));
        const PromptScript prompts({u"one more"_s, u"OK"_s});
        desk.Press(desk.names.add);
        EXPECT_EQ(desk.Shown().size(), row.refused);
        desk.Press(desk.names.add);
        EXPECT_EQ(desk.Shown().size(), row.refused);
        EXPECT_EQ(prompts.questions().size(), 1);
        EXPECT_EQ(Texts(prompts), QStringList{row.message});
    }
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

TEST(ItemListEditor, WorksByKeys)
{
    Desk desk(wizard);
    const PromptScript prompts({u"c"_s});
    desk.editor.SetItems({u"a"_s, u"b"_s});
    desk.Type(Qt::Key_Insert);
    EXPECT_EQ(prompts.questions(), QStringList{anItem});
    EXPECT_EQ(desk.Shown(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    desk.Type(Qt::Key_End);
    desk.Type(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(desk.Shown(), (QStringList{u"a"_s, u"c"_s, u"b"_s}));
    desk.Type(Qt::Key_Up, Qt::AltModifier);
    desk.Type(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(desk.Shown(), (QStringList{u"a"_s, u"c"_s, u"b"_s}));
    desk.Type(Qt::Key_Down, Qt::ShiftModifier);
    desk.Type(Qt::Key_Delete);
    EXPECT_EQ(desk.Shown(), QStringList{u"a"_s});
    EXPECT_TRUE(prompts.boxes().empty());
}

TEST(ItemListEditor, ShowsAnyItemOnOneLineWithinTheList)
{
    Desk desk(wizard);
    const QString widest(10000, u'W');
    desk.editor.resize(desk.editor.sizeHint());
    const QSize size = desk.editor.size();
    desk.editor.SetItems({u"short"_s, widest, u"two\nlines"_s, u"<b>bold"_s});
    QTest::qWait(0);
    EXPECT_EQ(desk.editor.sizeHint(), size);
    const QListView *list = desk.editor.List();
    const QRect first = list->visualRect(list->model()->index(0, 0));
    for (int row = 1; row < 4; ++row) {
        const QRect shown = list->visualRect(list->model()->index(row, 0));
        EXPECT_EQ(shown.height(), first.height());
        EXPECT_LE(shown.right(), list->viewport()->width());
    }
    EXPECT_EQ(desk.Shown()[1], widest);
}

TEST(ItemListEditor, TakesMoreItemsThanAQuestionMayHave)
{
    Desk desk(wizard);
    desk.editor.SetItems(Numbered(20000));
    desk.Press(u"cmd_sort"_s);
    desk.Pick(10000);
    const QString picked = desk.Current();
    desk.Press(desk.names.up);
    EXPECT_EQ(desk.Shown().indexOf(picked), 9999);
    desk.Type(Qt::Key_A, Qt::ControlModifier);
    desk.Press(desk.names.remove);
    EXPECT_EQ(desk.Shown(), QStringList());
}

} // namespace
