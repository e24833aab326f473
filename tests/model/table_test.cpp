#include "model/table.h"

#include <gtest/gtest.h>

#include <initializer_list>

using namespace vellumo;

namespace {

using Numbers = Table<int>;

Numbers TableOf(std::initializer_list<int> numbers)
{
    Numbers table;
    for (int number : numbers)
        table.Append(number);
    return table;
}

std::vector<int> Shown(const Numbers &table)
{
    std::vector<int> shown;
    for (const int *number : table.Shown())
        shown.push_back(*number);
    return shown;
}

bool IsEven(int number)
{
    return number % 2 == 0;
}

} // namespace

TEST(Table, IsAtBothEndsWhenEmpty)
{
    Numbers table;
    EXPECT_TRUE(table.AtStart());
    EXPECT_TRUE(table.AtEnd());
    table.MoveFirst();
    table.MoveNext();
    table.MovePrevious();
    EXPECT_TRUE(table.AtStart());
    EXPECT_TRUE(table.AtEnd());
    EXPECT_EQ(table.Count(), 0);
}

TEST(Table, AppendMakesTheRowCurrent)
{
    Numbers table = TableOf({7, 8});
    EXPECT_EQ(table.Current(), 8);
    table.Current() = 9;
    EXPECT_EQ(Shown(table), (std::vector{7, 9}));
}

TEST(Table, WalksFromOneEndPastTheOther)
{
    Numbers table = TableOf({1, 2});
    table.MoveFirst();
    EXPECT_EQ(table.Current(), 1);
    EXPECT_FALSE(table.AtStart());
    table.MovePrevious();
    EXPECT_TRUE(table.AtStart());
    table.MoveNext();
    table.MoveNext();
    EXPECT_EQ(table.Current(), 2);
    table.MoveNext();
    EXPECT_TRUE(table.AtEnd());
    table.MoveNext();
    EXPECT_TRUE(table.AtEnd());
    table.MovePrevious();
    EXPECT_EQ(table.Current(), 2);
}

TEST(Table, ComesBackToAPosition)
{
    Numbers table = TableOf({1, 2, 3});
    table.MoveFirst();
    table.MoveNext();
    const Numbers::Position position = table.GetPosition();
    table.MoveLast();
    table.SetPosition(position);
    EXPECT_EQ(table.Current(), 2);
}

TEST(Table, DeletingLeavesTheRowThatFollowsCurrent)
{
    Numbers table = TableOf({1, 2, 3});
    table.MoveFirst();
    table.Delete();
    EXPECT_EQ(table.Current(), 2);
    table.MoveLast();
    table.Delete();
    EXPECT_TRUE(table.AtEnd());
    EXPECT_EQ(Shown(table), (std::vector{2}));
}

TEST(Table, AFilterHidesRowsFromEveryWalk)
{
    Numbers table = TableOf({1, 2, 3, 4, 5});
    table.SetFilter(IsEven);
    EXPECT_EQ(table.Count(), 2);
    EXPECT_EQ(table.Current(), 2);
    table.MoveNext();
    EXPECT_EQ(table.Current(), 4);
    table.MoveNext();
    EXPECT_TRUE(table.AtEnd());
    table.MoveLast();
    EXPECT_EQ(table.Current(), 4);
    EXPECT_EQ(Shown(table), (std::vector{2, 4}));

    table.ClearFilter();
    EXPECT_EQ(table.Count(), 5);
    EXPECT_EQ(table.Current(), 1);
}

TEST(Table, AFilterThatNothingPassesMakesItLookEmpty)
{
    Numbers table = TableOf({1, 3});
    table.SetFilter(IsEven);
    EXPECT_TRUE(table.AtStart());
    EXPECT_TRUE(table.AtEnd());
    EXPECT_EQ(table.Count(), 0);
}

TEST(Table, DeletesWhatTheFilterShowsAndNothingElse)
{
    Numbers table = TableOf({1, 2, 3, 4, 5});
    table.SetFilter(IsEven);
    table.DeleteShown();
    EXPECT_TRUE(table.AtEnd());
    table.ClearFilter();
    EXPECT_EQ(Shown(table), (std::vector{1, 3, 5}));
}

TEST(Table, ClearTakesTheHiddenRowsToo)
{
    Numbers table = TableOf({1, 2, 3});
    table.SetFilter(IsEven);
    table.Clear();
    EXPECT_EQ(table.Count(), 0);
    table.Append(5);
    EXPECT_EQ(Shown(table), (std::vector{5})) << "the filter went with the rows";
}
