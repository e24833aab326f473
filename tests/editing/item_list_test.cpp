#include "editing/item_list.h"

#include "editing/built_in_names.h"
#include "support/print.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString tooManyItems = u"Please keep the list to 255 items or less."_s;
const QString tooManyBoxes = u"Please keep the Check Box to 32 items or less."_s;
const QString exists = u"The item already exists. Please enter a different name."_s;
const QString tooLong = u"Please keep the item length to 32 characters or less."_s;
const QString quotes = u"Double quotes are not allowed."_s;

QStringList Numbered(int count)
{
    QStringList items;
    for (int i = 0; i < count; ++i)
        items += u"Item %1"_s.arg(i, 3, 10, QChar(u'0'));
    return items;
}

ItemList ListOf(const QStringList &items)
{
    ItemList list;
    list.SetItems(items);
    return list;
}

TEST(ItemList, AsksForNoMoreItemsFromItsHostsLimitOn)
{
    const struct {
        const char *what;
        const ItemListHost &host;
        QString type;
        int count;
        QString refusal;
    } rows[] = {
        {"wizard, pulldown list, 255", wizardItemList, u"Pulldown List"_s, 255, u""_s},
        {"wizard, pulldown list, 256", wizardItemList, u"Pulldown List"_s, 256, tooManyItems},
        {"wizard, checkboxes, 32", wizardItemList, u"Checkboxes"_s, 32, u""_s},
        {"wizard, checkboxes, 33", wizardItemList, u"Checkboxes"_s, 33, tooManyBoxes},
        {"wizard, a type without items", wizardItemList, u"Text"_s, 256, u""_s},
        {"wizard, no type", wizardItemList, u""_s, 256, u""_s},
        {"dialog, pulldown list, 254", propertyItemList, u"Pulldown List"_s, 254, u""_s},
        {"dialog, pulldown list, 255", propertyItemList, u"Pulldown List"_s, 255, tooManyItems},
        {"dialog, checkboxes, 33", propertyItemList, u"Checkboxes"_s, 33, u""_s},
        {"dialog, checkboxes, 254", propertyItemList, u"Checkboxes"_s, 254, u""_s},
        {"dialog, checkboxes, 255", propertyItemList, u"Checkboxes"_s, 255, tooManyItems},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(ListOf(Numbered(row.count)).RefusalToAdd(row.host, row.type), row.refusal);
    }
}

TEST(ItemList, AsksWithTheHostsPrompt)
{
    EXPECT_EQ(wizardItemList.firstPrompt, u"Please add an item to the List."_s);
    EXPECT_EQ(propertyItemList.firstPrompt, u"Please add the item to the List."_s);
    EXPECT_EQ(againPrompt, u"Please add an item to the List."_s);
}

TEST(ItemList, ObjectsToLengthBeforeQuotes)
{
    const struct {
        const char *what;
        QString text, objection;
    } rows[] = {
        {"32 is inclusive", QString(32, u'x'), u""_s},
        {"one over", QString(33, u'x'), tooLong},
        {"a quote", u"5\" tube"_s, quotes},
        {"both", QString(33, u'"'), tooLong},
        {"blanks alone", u"  "_s, u""_s},
        {"empty", u""_s, u""_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(ObjectionToItem(row.text), row.objection);
    }
}

TEST(ItemList, AddsATextOnceWithItsCase)
{
    ItemList list;
    EXPECT_EQ(list.Add(u"Red"_s), u""_s);
    EXPECT_EQ(list.Add(u"Red"_s), exists);
    EXPECT_EQ(list.Add(u"red"_s), u""_s);
    EXPECT_EQ(list.Add(u"Red "_s), u""_s) << "texts are compared as they stand";
    EXPECT_EQ(list.Items(), (QStringList{u"Red"_s, u"red"_s, u"Red "_s}));
}

TEST(ItemList, AddsNothingForAnEmptyText)
{
    ItemList list;
    EXPECT_EQ(list.Add(QString()), u""_s);
    EXPECT_TRUE(list.Items().isEmpty());
}

TEST(ItemList, AddsTheNamesThatItLacks)
{
    ItemList list = ListOf({u" Ohio "_s, u"ohio"_s, u"Here"_s});
    EXPECT_EQ(list.AddNames({u"Texas"_s, u"Ohio"_s, u"Utah"_s, u" Texas"_s}), u""_s);
    EXPECT_EQ(list.Items(),
              (QStringList{u" Ohio "_s, u"ohio"_s, u"Here"_s, u"Texas"_s, u"Utah"_s}));
}

TEST(ItemList, AddsNamesTwiceWithoutEffect)
{
    ItemList list;
    EXPECT_EQ(list.AddNames(StateNames()), u""_s);
    EXPECT_EQ(list.Items(), StateNames());
    EXPECT_EQ(list.AddNames(StateNames()), u""_s);
    EXPECT_EQ(list.Items(), StateNames());
}

TEST(ItemList, CountsNamesThatItHasAgainstTheLimit)
{
    ItemList list;
    EXPECT_EQ(list.AddNames(CountryNames()), u""_s);
    EXPECT_EQ(list.Items(), CountryNames());
    EXPECT_EQ(list.AddNames(CountryNames()), tooManyItems) << "though none would be added";
    EXPECT_EQ(list.Items(), CountryNames());
}

TEST(ItemList, RefusesNamesAbove255Entries)
{
    ItemList fits = ListOf(Numbered(204));
    EXPECT_EQ(fits.AddNames(StateNames()), u""_s);
    EXPECT_EQ(fits.Items().size(), 255);

    ItemList full = ListOf(Numbered(205));
    EXPECT_EQ(full.AddNames(StateNames()), tooManyItems);
    EXPECT_EQ(full.Items(), Numbered(205));

    ItemList states = ListOf(StateNames());
    EXPECT_EQ(states.AddNames(CountryNames()), tooManyItems);
    EXPECT_EQ(states.Items(), StateNames());
}

TEST(ItemList, RemovesWhatIsSelected)
{
    ItemList list = ListOf({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s});
    EXPECT_EQ(list.Remove({}).refusal, u"Please select an item to delete."_s);
    EXPECT_EQ(list.Items().size(), 5);

    const ItemList::Change change = list.Remove({4, 0, 2});
    EXPECT_EQ(change.refusal, u""_s);
    EXPECT_TRUE(change.selection.isEmpty());
    EXPECT_EQ(list.Items(), (QStringList{u"b"_s, u"d"_s}));
}

TEST(ItemList, MovesTheOneSelectedEntryAndSelectsItThere)
{
    ItemList list = ListOf({u"a"_s, u"b"_s, u"c"_s});
    EXPECT_EQ(list.MoveUp({2}).selection, ItemList::Rows{1});
    EXPECT_EQ(list.Items(), (QStringList{u"a"_s, u"c"_s, u"b"_s}));
    EXPECT_EQ(list.MoveDown({0}).selection, ItemList::Rows{1});
    EXPECT_EQ(list.Items(), (QStringList{u"c"_s, u"a"_s, u"b"_s}));
}

TEST(ItemList, StaysAtItsEnds)
{
    ItemList list = ListOf({u"a"_s, u"b"_s});
    const ItemList::Change up = list.MoveUp({0});
    EXPECT_EQ(up.refusal, u""_s);
    EXPECT_EQ(up.selection, ItemList::Rows{0});
    const ItemList::Change down = list.MoveDown({1});
    EXPECT_EQ(down.refusal, u""_s);
    EXPECT_EQ(down.selection, ItemList::Rows{1});
    EXPECT_EQ(list.Items(), (QStringList{u"a"_s, u"b"_s}));
}

TEST(ItemList, MovesNothingUnlessOneEntryIsSelected)
{
    ItemList list = ListOf({u"a"_s, u"b"_s, u"c"_s});
    EXPECT_EQ(list.MoveUp({}).refusal, u"Please select a question."_s);
    EXPECT_EQ(list.MoveDown({}).refusal, u"Please select a question."_s);
    const ItemList::Change two = list.MoveUp({1, 2});
    EXPECT_EQ(two.refusal, u"Please select only one item."_s);
    EXPECT_EQ(two.selection, (ItemList::Rows{1, 2}));
    EXPECT_EQ(list.MoveDown({0, 1}).refusal, u"Please select only one item."_s);
    EXPECT_EQ(list.Items(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
}

TEST(ItemList, SortsByCharacterCodeUpAndDownInTurn)
{
    ItemList list = ListOf({u"apple"_s, u"Zebra"_s, u"\u00e9t\u00e9"_s, u"10"_s, u"9"_s});
    const QStringList ascending = {u"10"_s, u"9"_s, u"Zebra"_s, u"apple"_s, u"\u00e9t\u00e9"_s};
    const QStringList descending(ascending.rbegin(), ascending.rend());
    list.Sort();
    EXPECT_EQ(list.Items(), ascending);
    list.Sort();
    EXPECT_EQ(list.Items(), descending);
    list.Sort();
    EXPECT_EQ(list.Items(), ascending);
}

TEST(ItemList, KeepsItsTurnWhenItIsEmptyOrFilledAnew)
{
    ItemList list;
    list.Sort();
    list.SetItems({u"b"_s, u"a"_s});
    list.Sort();
    EXPECT_EQ(list.Items(), (QStringList{u"a"_s, u"b"_s})) << "an empty list took a turn";

    list.Clear();
    list.SetItems({u"c"_s, u"d"_s});
    list.Sort();
    EXPECT_EQ(list.Items(), (QStringList{u"d"_s, u"c"_s})) << "new items brought a new turn";
}

TEST(ItemList, SortsWhateverOrderItFinds)
{
    QStringList sorted = Numbered(256);
    QStringList reversed(sorted.rbegin(), sorted.rend());
    QStringList organPipes;
    for (int i = 0; i < 256; ++i)
        i % 2 ? organPipes.prepend(sorted[i]) : organPipes.append(sorted[i]);
    const QStringList twins = sorted.first(3) + sorted.first(3) + sorted.first(3);
    for (const QStringList &items :
         {sorted, reversed, organPipes, twins, QStringList(256, u"same"_s), QStringList{u"x"_s}}) {
        ItemList list = ListOf(items);
        QStringList expected = items;
        std::ranges::sort(expected);
        list.Sort();
        EXPECT_EQ(list.Items(), expected);
        list.Sort();
        std::ranges::reverse(expected);
        EXPECT_EQ(list.Items(), expected);
    }
}

TEST(ItemList, MovesAnEntryByManyPlaces)
{
    const struct {
        qsizetype from, distance, to;
        QStringList items;
    } rows[] = {{0, 2, 2, {u"b"_s, u"c"_s, u"a"_s, u"d"_s}},
                {3, -2, 1, {u"a"_s, u"d"_s, u"b"_s, u"c"_s}},
                {1, 9, 3, {u"a"_s, u"c"_s, u"d"_s, u"b"_s}},
                {2, -9, 0, {u"c"_s, u"a"_s, u"b"_s, u"d"_s}}};
    for (const auto &row : rows) {
        ItemList list;
        list.SetItems({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
        const ItemList::Change change = list.Move({row.from}, row.distance);
        EXPECT_EQ(change.refusal, QString());
        EXPECT_EQ(change.selection, ItemList::Rows{row.to});
        EXPECT_EQ(list.Items(), row.items);
    }
}

} // namespace
