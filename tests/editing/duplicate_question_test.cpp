#include "editing/question_list.h"

#include "question_sources.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

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
