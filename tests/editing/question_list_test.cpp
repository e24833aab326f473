#include "editing/question_list.h"

#include "support/print.h"

#include <QStringList>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// A source with questions named q1, q2, ..., each a Pulldown List with the items "N a" and "N b";
/// the cursor stands on the first.
clsDataSource SourceWith(int count)
{
    clsDataSource source;
    source.GetDataMember();
    for (int n = 1; n <= count; ++n) {
        const QString name = QString::number(n);
        const int id = source.IssueId();
        source.Questions().Append({.Order = n,
                                   .Title = u"Title "_s + name,
                                   .Question = u"Question "_s + name,
                                   .Type = u"Pulldown List"_s,
                                   .ColumnName = u'q' + name,
                                   .Id = id});
        source.Items().Append({.Id = id, .Item = name + u" a"_s});
        source.Items().Append({.Id = id, .Item = name + u" b"_s});
    }
    source.MoveFirst();
    return source;
}

QStringList ColumnNames(const clsDataSource &source)
{
    QStringList names;
    for (const QuestionRow &row : source.Questions().Rows())
        names += row.ColumnName;
    return names;
}

QStringList ItemsOf(const clsDataSource &source, int id)
{
    QStringList items;
    for (const ItemRow &row : source.Items().Rows())
        if (row.Id == id)
            items += row.Item;
    return items;
}

void ExpectOrderWithoutGaps(const clsDataSource &source)
{
    int expected = 0;
    for (const QuestionRow &row : source.Questions().Rows())
        EXPECT_EQ(row.Order, ++expected);
}

QuestionRow &Current(clsDataSource &source)
{
    return source.Questions().Current();
}

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

TEST(DuplicateQuestion, AppendsACopyWithItsItems)
{
    clsDataSource source = SourceWith(3);
    source.Questions().SetPosition(1);
    Current(source).Title = u"  Title 2 "_s;
    EXPECT_TRUE(DuplicateQuestion(source));

    EXPECT_EQ(Current(source).ColumnName, u"q2"_s) << "the original stays current";
    ASSERT_EQ(source.QuestionCount(), 4);
    const QuestionRow &copy = source.Questions().Rows().back();
    EXPECT_EQ(copy.Order, 4);
    EXPECT_EQ(copy.Title, u"Title 2"_s);
    EXPECT_EQ(copy.Question, u"Question 2"_s);
    EXPECT_EQ(copy.Type, u"Pulldown List"_s);
    EXPECT_EQ(copy.ColumnName, u"q2(1)"_s);
    EXPECT_EQ(copy.Id, 4);
    EXPECT_EQ(source.MaxId(), 5);
    EXPECT_EQ(ItemsOf(source, 4), (QStringList{u"2 a"_s, u"2 b"_s}));
    EXPECT_EQ(source.Items().Count(), 8) << "the filter is gone";
}

TEST(DuplicateQuestion, LosesNoItemsWhereTheNextIdIsInUse)
{
    clsDataSource source;
    source.GetDataMember();
    source.SetMaxId(7); // as a file may have it
    source.Questions().Append({.Order = 1, .Type = u"Checkboxes"_s, .ColumnName = u"a"_s, .Id = 7});
    source.AppendItems(7, {u"kept"_s});
    EXPECT_TRUE(DuplicateQuestion(source));
    EXPECT_EQ(source.ItemsOf(7), (QStringList{u"kept"_s, u"kept"_s}));
}

TEST(DuplicateQuestion, LeavesTheItemsOfATypeWithoutAListAlone)
{
    clsDataSource source = SourceWith(1);
    Current(source).Type = u"Text"_s;
    EXPECT_TRUE(DuplicateQuestion(source));
    EXPECT_EQ(source.Items().Count(), 2);
}

TEST(DuplicateQuestion, FindsTheFirstFreeName)
{
    const struct {
        const char *what;
        QString name, other, copy;
    } rows[] = {
        {"a first copy", u"Age"_s, u"x"_s, u"Age(1)"_s},
        {"a second copy", u"Age"_s, u"Age(1)"_s, u"Age(2)"_s},
        {"case counts", u"Age"_s, u"AGE(1)"_s, u"Age(1)"_s},
        {"a copy of a copy", u"Age(1)"_s, u"Age"_s, u"Age(1)(1)"_s},
        {"blanks at the ends go", u"  Age "_s, u"x"_s, u"Age(1)"_s},
        {"252 characters", QString(252, u'a'), u"x"_s, QString(252, u'a') + u"(1)"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        clsDataSource source = SourceWith(2);
        source.Questions().SetPosition(1);
        Current(source).ColumnName = row.other;
        source.MoveFirst();
        Current(source).ColumnName = row.name;
        EXPECT_TRUE(DuplicateQuestion(source));
        EXPECT_EQ(source.Questions().Rows().back().ColumnName, row.copy);
    }
}

TEST(DuplicateQuestion, RefusesANameThatGrowsTooLong)
{
    clsDataSource source = SourceWith(3);
    source.Questions().SetPosition(1);
    Current(source).ColumnName = QString(253, u'a');
    const Outcome outcome = DuplicateQuestion(source);

    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.error().text, u"Column Name is too long to copy"_s);
    EXPECT_EQ(source.QuestionCount(), 3);
    EXPECT_EQ(source.MaxId(), 4);
    EXPECT_EQ(source.GetPosition(), 1);
}

TEST(DuplicateQuestion, RefusesWhenOnlyALongerNumberWouldBeFree)
{
    clsDataSource source = SourceWith(10);
    const QString name(252, u'a');
    Current(source).ColumnName = name;
    for (int n = 1; n <= 9; ++n) {
        source.Questions().SetPosition(n);
        Current(source).ColumnName = name + u'(' + QString::number(n) + u')';
    }
    source.MoveFirst();
    EXPECT_FALSE(DuplicateQuestion(source)) << "(10) makes 256 characters";
    EXPECT_EQ(source.GetPosition(), 0);
}

} // namespace
