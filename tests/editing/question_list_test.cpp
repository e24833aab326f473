#include "editing/question_list.h"

#include "question_sources.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(QuestionList, RefusesToWorkOnNoQuestion)
{
    clsDataSource source = SourceWith(0);
    EXPECT_EQ(RefusalWithoutSelection(source), u"Please select a question."_s);

    source = SourceWith(1);
    EXPECT_EQ(RefusalWithoutSelection(source), QString());
    source.Questions().MoveNext();
    EXPECT_EQ(RefusalWithoutSelection(source), u"Please select a question."_s);
}

TEST(QuestionList, IsFullAt128)
{
    EXPECT_EQ(RefusalWhenFull(SourceWith(127)), QString());
    EXPECT_EQ(RefusalWhenFull(SourceWith(128)), u"The maximum number of questions is 128."_s);
    EXPECT_EQ(RefusalWhenFull(SourceWith(500)), u"The maximum number of questions is 128."_s);
}

TEST(RemoveQuestion, RenumbersThoseThatFollowAndTakesTheItemsAlong)
{
    clsDataSource source = SourceWith(5);
    source.Questions().SetPosition(1);
    RemoveQuestion(source);

    EXPECT_EQ(ColumnNames(source), (QStringList{u"q1"_s, u"q3"_s, u"q4"_s, u"q5"_s}));
    ExpectOrderWithoutGaps(source);
    EXPECT_EQ(source.Items().Count(), 8);
    EXPECT_TRUE(ItemsOf(source, 2).isEmpty());
    EXPECT_EQ(Current(source).ColumnName, u"q3"_s);
}

TEST(RemoveQuestion, MakesTheNewLastOneCurrent)
{
    clsDataSource source = SourceWith(3);
    source.MoveLast();
    RemoveQuestion(source);
    EXPECT_EQ(Current(source).ColumnName, u"q2"_s);
}

TEST(RemoveQuestion, LeavesAnEmptyListAfterTheOnlyOne)
{
    clsDataSource source = SourceWith(1);
    RemoveQuestion(source);
    EXPECT_EQ(source.QuestionCount(), 0);
    EXPECT_EQ(source.Items().Count(), 0);
    EXPECT_TRUE(source.AtEnd());
}

TEST(RemoveQuestion, LeavesItemsWithoutAnOwnerAlone)
{
    clsDataSource source = SourceWith(2);
    source.Items().Append({.Id = 77, .Item = u"stray"_s});
    source.MoveFirst();
    RemoveQuestion(source);
    EXPECT_EQ(ItemsOf(source, 77), QStringList{u"stray"_s});
}

TEST(MoveQuestion, ExchangesContentsAndKeepsItems)
{
    clsDataSource source = SourceWith(5);
    source.Questions().SetPosition(3);
    EXPECT_TRUE(MoveQuestionUp(source));

    EXPECT_EQ(ColumnNames(source), (QStringList{u"q1"_s, u"q2"_s, u"q4"_s, u"q3"_s, u"q5"_s}));
    ExpectOrderWithoutGaps(source);
    EXPECT_EQ(Current(source).ColumnName, u"q4"_s);
    EXPECT_EQ(Current(source).Title, u"Title 4"_s);
    EXPECT_EQ(ItemsOf(source, Current(source).Id), (QStringList{u"4 a"_s, u"4 b"_s}));

    EXPECT_TRUE(MoveQuestionDown(source));
    EXPECT_EQ(ColumnNames(source), ColumnNames(SourceWith(5)));
    EXPECT_EQ(Current(source).ColumnName, u"q4"_s);
}

TEST(MoveQuestion, StopsAtTheEnds)
{
    clsDataSource source = SourceWith(3);
    EXPECT_FALSE(MoveQuestionUp(source));
    source.MoveLast();
    EXPECT_FALSE(MoveQuestionDown(source));
    EXPECT_EQ(ColumnNames(source), ColumnNames(SourceWith(3)));
}

TEST(MoveQuestion, GoesByTheNumberOfAQuestionButNeverLeavesTheTable)
{
    clsDataSource source = SourceWith(3);
    Current(source).Order = 9;
    EXPECT_FALSE(MoveQuestionUp(source)) << "nothing above, whatever the number";
    source.Questions().SetPosition(1);
    Current(source).Order = 1;
    EXPECT_FALSE(MoveQuestionUp(source)) << "number 1 stays";
    Current(source).Order = 3;
    EXPECT_FALSE(MoveQuestionDown(source)) << "the number of the last stays";
    source.MoveLast();
    Current(source).Order = 7;
    EXPECT_FALSE(MoveQuestionDown(source)) << "nothing below, whatever the number";
}

TEST(MoveQuestion, GoesSoFarAsItCan)
{
    const struct {
        qsizetype from, distance;
        bool moved;
        QStringList names;
    } rows[] = {{1, 2, true, {u"q1"_s, u"q3"_s, u"q4"_s, u"q2"_s}},
                {3, -2, true, {u"q1"_s, u"q4"_s, u"q2"_s, u"q3"_s}},
                {1, 10, true, {u"q1"_s, u"q3"_s, u"q4"_s, u"q2"_s}},
                {3, -10, true, {u"q4"_s, u"q1"_s, u"q2"_s, u"q3"_s}},
                {0, -1, false, {u"q1"_s, u"q2"_s, u"q3"_s, u"q4"_s}},
                {3, 4, false, {u"q1"_s, u"q2"_s, u"q3"_s, u"q4"_s}}};
    for (const auto &row : rows) {
        clsDataSource source = SourceWith(4);
        source.SetPosition(row.from);
        const QString moving = Current(source).ColumnName;
        EXPECT_EQ(MoveQuestion(source, row.distance), row.moved);
        EXPECT_EQ(ColumnNames(source), row.names);
        EXPECT_EQ(Current(source).ColumnName, moving);
        ExpectOrderWithoutGaps(source);
    }
}
