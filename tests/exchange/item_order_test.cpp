#include "exchange/item_order.h"

#include "editing/question_sources.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// Questions 1 and 2 with a list each, and these items in the table.
clsDataSource SourceOf(const QList<ItemRow> &items)
{
    clsDataSource source = SourceWith(2);
    source.Items().SetRows(items);
    return source;
}

QString Reason(const QStringList &order)
{
    const auto read = ReadItemOrder(order);
    return read ? u"none"_s : read.error().text;
}

} // namespace

TEST(ItemOrder, IsNotToldWhereItIsThatOfTheQuestions)
{
    EXPECT_EQ(ItemOrderOf(SourceWith(3)), QStringList());
    EXPECT_EQ(ItemOrderOf(SourceOf({})), QStringList());
    EXPECT_EQ(ItemOrderOf(SourceOf({{2, u"b"_s}})), QStringList());
}

TEST(ItemOrder, TellsOfRunsAndOfItemsWithoutAQuestion)
{
    const QList<ItemRow> items = {{7, u"x"_s}, {2, u"a"_s}, {2, u"b"_s}, {1, u"c"_s},
                                  {2, u"d"_s}, {1, u"e"_s}, {-3, u""_s}, {1, u"f"_s}};
    const QStringList order = ItemOrderOf(SourceOf(items));
    EXPECT_EQ(order,
              (QStringList{u"7:x"_s, u"2*2"_s, u"1*1"_s, u"2"_s, u"1*1"_s, u"-3:"_s, u"1"_s}));

    clsDataSource sorted = SourceOf({items[3], items[5], items[7], items[1], items[2], items[4]});
    ASSERT_TRUE(ArrangeItems(sorted, *ReadItemOrder(order)));
    EXPECT_EQ(sorted.Items().Rows(), items);
}

TEST(ItemOrder, CountsItemsOfAQuestionThatHasNone)
{
    clsDataSource source = SourceOf({{1, u"a"_s}, {2, u"b"_s}});
    source.Questions().Current().Type = u"Text"_s;
    EXPECT_EQ(ItemOrderOf(source), (QStringList{u"1:a"_s, u"2"_s}));
}

TEST(ItemOrder, LeavesWhatItDoesNotNameAsItStands)
{
    const QList<ItemRow> items = {{1, u"a"_s}, {2, u"b"_s}, {1, u"c"_s}, {2, u"d"_s}};
    clsDataSource source = SourceOf(items);
    ASSERT_TRUE(ArrangeItems(source, *ReadItemOrder({u"9:x"_s})));
    EXPECT_EQ(source.Items().Rows(), (QList<ItemRow>{{9, u"x"_s}} + items));
}

TEST(ItemOrder, SurvivesEditingOfTheRows)
{
    clsDataSource source = SourceOf({{1, u"a"_s}, {1, u"new"_s}, {2, u"b"_s}, {2, u"c"_s}});
    ASSERT_TRUE(ArrangeItems(source, *ReadItemOrder({u"2*1"_s, u"9"_s, u"1*5"_s})));
    EXPECT_EQ(source.Items().Rows(),
              (QList<ItemRow>{{2, u"b"_s}, {1, u"a"_s}, {1, u"new"_s}, {2, u"c"_s}}));
}

TEST(ItemOrder, GivesNoItemToAQuestionBesideItsRow)
{
    clsDataSource source = SourceWith(2);
    const QList<ItemRow> before = source.Items().Rows();
    const Outcome arranged = ArrangeItems(source, *ReadItemOrder({u"2:more"_s}));
    ASSERT_FALSE(arranged);
    EXPECT_EQ(arranged.error().text, u"The question with the Id 2 has its items in its own row."_s);
    EXPECT_EQ(source.Items().Rows(), before);
}

TEST(ItemOrder, RefusesWhatTellsOfNoItems)
{
    EXPECT_EQ(Reason({u"1"_s, u"-1*3"_s, u"2: a:\n*b"_s}), u"none"_s);
    for (const QString &text : {u"x"_s, u"1*"_s, u"1*-2"_s, u"1 "_s, u":a"_s, u"99999999999"_s,
                                u"1*99999999999"_s, u""_s})
        EXPECT_EQ(Reason({text}), u"'%1' tells of no items."_s.arg(text));
}
