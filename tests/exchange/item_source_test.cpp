#include "exchange/item_source.h"

#include "model/limits.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// The items as "row: text", or why there are none.
QStringList Told(const Result<QList<NewItem>> &items)
{
    if (!items)
        return {Describe(items.error())};
    QStringList told;
    for (const NewItem &item : *items)
        told += QString::number(item.row) + u": "_s + item.text;
    return told;
}

const ItemRules &RulesOf(QStringView type)
{
    return *TypeNamed(type)->items;
}

} // namespace

TEST(ItemSource, TakesTheLinesOfAText)
{
    EXPECT_EQ(Told(ItemsOfText("\xEF\xBB\xBF"
                               "Oak\r\n\r\n \tAsh \r\nC\xC3\xA8"
                               "dre\rElm,a")),
              (QStringList{u"1: Oak"_s, u"3: Ash"_s, u"4: Cèdre"_s, u"5: Elm,a"_s}));
    EXPECT_EQ(Told(ItemsOfText("")), QStringList());
    EXPECT_EQ(Told(ItemsOfText("\f\n \f c\na\fb\f")), (QStringList{u"2: c"_s, u"3: a b"_s}));
    EXPECT_EQ(Told(ItemsOfText("a\n\xE4")), QStringList{u":2: The text is not in UTF-8."_s});
}

TEST(ItemSource, RefusesMoreLinesThanAnyListHas)
{
    EXPECT_EQ(Told(ItemsOfText(QByteArray("x\n").repeated(100'000))).size(), 100'000);
    EXPECT_EQ(Told(ItemsOfText(QByteArray("x\n").repeated(100'001))),
              QStringList{u"The text has more than 100000 lines."_s});
}

TEST(ItemSource, TakesTheColumnOfATable)
{
    const QByteArray table = "No;Tree;Place\r\n1;\"Oak;\r\nold\";A\r\n\r\n2;;B\r\n3; Ash ;C\r\n4";
    EXPECT_EQ(Told(ItemsOfTable(table, u" tree"_s)), (QStringList{u"2: Oak; old"_s, u"5: Ash"_s}));
    EXPECT_EQ(Told(ItemsOfTable(table, u""_s)),
              (QStringList{u"1: No"_s, u"2: 1"_s, u"4: 2"_s, u"5: 3"_s, u"6: 4"_s}));
    EXPECT_EQ(Told(ItemsOfTable(table, u"Shrub"_s)),
              QStringList{u"The first row has no column 'Shrub'."_s});
    EXPECT_EQ(Told(ItemsOfTable("a\tb\nc\td", u"b"_s)), QStringList{u"2: d"_s});
    EXPECT_EQ(Told(ItemsOfTable("a\nb", u""_s)), (QStringList{u"1: a"_s, u"2: b"_s}));
    EXPECT_EQ(Told(ItemsOfTable("a,b", u"b"_s)), QStringList());
    EXPECT_EQ(Told(ItemsOfTable("", u""_s)), QStringList());
    EXPECT_EQ(Told(ItemsOfTable("", u"a"_s)), QStringList{u"The first row has no column 'a'."_s});
    EXPECT_EQ(Told(ItemsOfTable("a,\"b", u""_s)),
              QStringList{u"Row 1 has a quotation mark without its partner."_s});
}

TEST(ItemSource, AddsByTheRulesOfAdding)
{
    ItemList items;
    items.SetItems({u"Oak"_s});
    const QString tooLong(33, u'x');
    const QList<Refusal> refusals =
        AddItems(items, RulesOf(u"Checkboxes"),
                 {{1, u"Ash"_s}, {2, u"Oak"_s}, {3, u"a \"b\""_s}, {5, tooLong}, {6, u"Elm"_s}});
    EXPECT_EQ(items.Items(), (QStringList{u"Oak"_s, u"Ash"_s, u"Elm"_s}));
    EXPECT_EQ(refusals,
              (QList<Refusal>{{2, {}, u"The item already exists. Please enter a different name."_s},
                              {3, {}, doubleQuotes.message},
                              {5, {}, itemLimit.message}}));
}

TEST(ItemSource, StopsAtWhatTheTypeMayHave)
{
    QList<NewItem> lines;
    for (qsizetype i = 1; i <= 256; ++i)
        lines.append({i, QString::number(i)});
    ItemList boxes;
    const QList<Refusal> ofBoxes = AddItems(boxes, RulesOf(u"Checkboxes"), lines.first(33));
    EXPECT_EQ(boxes.Items().size(), 32);
    EXPECT_EQ(ofBoxes, (QList<Refusal>{{33, {}, checkboxLimit.message}}));
    ItemList list;
    EXPECT_EQ(AddItems(list, RulesOf(u"Pulldown List"), lines),
              (QList<Refusal>{{256, {}, pulldownLimit.message}}));
    EXPECT_EQ(list.Items().size(), 255);
}
