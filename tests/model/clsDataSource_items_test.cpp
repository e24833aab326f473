#include "sources.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(clsDataSource, DeletingAQuestionLeavesItsItems)
{
    clsDataSource source = SourceWithColumns({u"a"_s, u"b"_s});
    AddItem(source, 1, u"Red"_s);
    source.MoveFirst();
    source.DeleteQuestion();
    EXPECT_EQ(source.Questions().Current().ColumnName, u"b"_s);
    EXPECT_EQ(ShownItems(source), QStringList{u"Red"_s});
}

TEST(clsDataSource, ClearingItemsSetsMaxIdBack)
{
    clsDataSource source = SourceWithColumns({u"a"_s, u"b"_s});
    EXPECT_EQ(source.MaxId(), 3);
    source.ClearItems();
    EXPECT_EQ(source.MaxId(), 1) << "also where there was nothing to clear";
    EXPECT_EQ(source.QuestionCount(), 2);
    source.ClearQuestions();
    EXPECT_EQ(source.QuestionCount(), 0);
}

TEST(clsDataSource, FiltersTheItemsOfOneQuestion)
{
    clsDataSource source = SourceWithColumns({u"a"_s, u"b"_s});
    AddItem(source, 2, u"Red"_s);
    AddItem(source, 1, u"One"_s);
    AddItem(source, 2, u"Blue"_s);
    source.FilterItems(2);
    EXPECT_EQ(ShownItems(source), (QStringList{u"Red"_s, u"Blue"_s}));
    source.FilterItems(3);
    EXPECT_EQ(ShownItems(source), QStringList());
    source.ClearItemFilter();
    EXPECT_EQ(ShownItems(source), (QStringList{u"Red"_s, u"One"_s, u"Blue"_s}));
}

TEST(clsDataSource, DeletesFromALargeTable)
{
    clsDataSource source = SourceWithColumns({});
    for (int i = 0; i < 32640; ++i)
        AddItem(source, i % 128, u"item"_s);
    source.FilterItems(5);
    source.Items().DeleteShown();
    source.ClearItemFilter();
    EXPECT_EQ(source.Items().Count(), 32640 - 255);
    source.ClearItems();
    EXPECT_EQ(source.Items().Count(), 0);
}

TEST(DataSource, GathersItemsInTableOrderWhateverTheFilter)
{
    clsDataSource source;
    source.GetDataMember();
    for (const auto &[id, item] : {std::pair(7, u"a"_s), {3, u"x"_s}, {7, u"b"_s}})
        source.Items().Append({.Id = id, .Item = item});
    source.FilterItems(3);
    EXPECT_EQ(source.ItemsOf(7), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(source.ItemsOf(8), QStringList());
    EXPECT_EQ(source.ItemsById(), (QHash<int, QStringList>{{7, {u"a"_s, u"b"_s}}, {3, {u"x"_s}}}));
    EXPECT_EQ(source.Items().Count(), 1) << "the filter stays";
}

TEST(DataSource, ReplacesTheItemsOfOneQuestion)
{
    clsDataSource source;
    source.GetDataMember();
    for (const auto &[id, item] : {std::pair(7, u"a"_s), {3, u"x"_s}, {7, u"b"_s}})
        source.Items().Append({.Id = id, .Item = item});
    source.ReplaceItems(7, {u"c"_s, u"a"_s});
    EXPECT_EQ(source.ItemsOf(7), (QStringList{u"c"_s, u"a"_s}));
    EXPECT_EQ(source.ItemsOf(3), QStringList{u"x"_s});
    EXPECT_EQ(source.Items().Count(), 3) << "no filter is left";
    source.ReplaceItems(7, {});
    EXPECT_EQ(source.ItemsOf(7), QStringList());
    source.AppendItems(3, {u"y"_s});
    EXPECT_EQ(source.ItemsOf(3), (QStringList{u"x"_s, u"y"_s}));
}
