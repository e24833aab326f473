#include "sources.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(clsDataSource, FailsOnATableThatDoesNotExist)
{
    clsDataSource source;
    const std::function<void()> uses[] = {
        [&] { source.Questions(); },
        [&] { source.Items(); },
        [&] { (void)source.AtEnd(); },
        [&] { (void)source.AtStart(); },
        [&] { (void)source.QuestionCount(); },
        [&] { (void)source.GetPosition(); },
        [&] { source.SetPosition(0); },
        [&] { source.MoveFirst(); },
        [&] { source.MoveLast(); },
        [&] { source.MoveNext(); },
        [&] { source.AddQuestion(); },
        [&] { source.AddItem(); },
        [&] { source.DeleteQuestion(); },
        [&] { source.ClearQuestions(); },
        [&] { source.ClearItems(); },
        [&] { source.FilterItems(1); },
        [&] { source.ClearItemFilter(); },
        [&] { (void)source.ColumnNameExists(u"a"); },
        [&] { (void)source.ColumnNameUsedElsewhere(u"a"); },
    };
    for (size_t i = 0; i < std::size(uses); ++i) {
        SCOPED_TRACE(i);
        try {
            uses[i]();
            FAIL() << "nothing was raised";
        } catch (const RecordsetUnavailable &failure) {
            EXPECT_STREQ(failure.what(), "Recordset isn't available yet");
        }
    }
}

TEST(clsDataSource, EachTableIsCreatedOnItsOwn)
{
    clsDataSource source;
    source.CreateQuestionTable();
    EXPECT_EQ(source.QuestionCount(), 0);
    EXPECT_THROW(source.Items(), RecordsetUnavailable);
    source.CreateItemTable();
    EXPECT_EQ(source.Items().Count(), 0);
    source.CloseQuestions();
    EXPECT_THROW(source.Questions(), RecordsetUnavailable);
    EXPECT_NO_THROW(source.CloseQuestions()) << "closing what is not there is nothing";
}

TEST(clsDataSource, TheGridGetsTheQuestionsAndNeverLosesThem)
{
    clsDataSource source;
    source.GetDataMember();
    source.AddQuestion();
    AddItem(source, 1, u"Red"_s);
    EXPECT_EQ(&source.GetDataMember(), &source.Questions());
    EXPECT_EQ(source.QuestionCount(), 1);
    EXPECT_EQ(source.Items().Count(), 1);
}

TEST(clsDataSource, NeverIssuesAnIdTwice)
{
    clsDataSource source = SourceWithColumns({u"first"_s});
    EXPECT_EQ(source.Questions().Current().Id, 1);
    EXPECT_EQ(source.MaxId(), 2);
    source.DeleteQuestion();
    EXPECT_EQ(source.MaxId(), 2);
    EXPECT_EQ(source.IssueId(), 2);
}

TEST(clsDataSource, TheLargestIdDoesNotOverflow)
{
    clsDataSource source;
    source.SetMaxId(2147483647);
    EXPECT_EQ(source.IssueId(), 2147483647);
    EXPECT_EQ(source.MaxId(), 2147483647);
}

TEST(clsDataSource, MoveNextStaysOnTheLastRow)
{
    clsDataSource source = SourceWithColumns({u"a"_s, u"b"_s});
    source.MoveFirst();
    source.MoveNext();
    source.MoveNext();
    EXPECT_FALSE(source.AtEnd());
    EXPECT_EQ(source.Questions().Current().ColumnName, u"b"_s);
}

TEST(clsDataSource, MoveNextOnAnEmptyTableStaysAtItsEnds)
{
    clsDataSource source = SourceWithColumns({});
    source.MoveNext();
    EXPECT_TRUE(source.AtEnd());
    EXPECT_TRUE(source.AtStart());
}

TEST(clsDataSource, ClearsEverythingWhereverTheCursorsStand)
{
    clsDataSource source = SourceWithColumns({u"a"_s, u"b"_s});
    AddItem(source, 1, u"Red"_s);
    AddItem(source, 2, u"Blue"_s);
    source.Questions().MoveLast();
    source.Questions().MoveNext();
    source.FilterItems(1);
    source.ClearQuestions();
    source.ClearItems();
    EXPECT_EQ(source.QuestionCount(), 0);
    EXPECT_EQ(source.Items().Count(), 0);
}

TEST(clsDataSource, ColumnNamesAreComparedExactly)
{
    clsDataSource source = SourceWithColumns({u"name"_s, u"age"_s});
    source.MoveFirst();
    EXPECT_TRUE(source.ColumnNameExists(u"age"));
    EXPECT_FALSE(source.ColumnNameExists(u"Name"));
    EXPECT_FALSE(source.ColumnNameExists(u"name "));
    EXPECT_EQ(source.Questions().Current().ColumnName, u"name"_s) << "the cursor stays";
}

TEST(clsDataSource, NoColumnNameExistsInAnEmptyTable)
{
    const clsDataSource source = SourceWithColumns({});
    EXPECT_FALSE(source.ColumnNameExists(u""));
    EXPECT_FALSE(source.ColumnNameUsedElsewhere(u""));
    EXPECT_TRUE(source.AtEnd());
}

TEST(clsDataSource, AQuestionMayKeepItsOwnColumnName)
{
    clsDataSource single = SourceWithColumns({u"age"_s});
    EXPECT_FALSE(single.ColumnNameUsedElsewhere(u"age"));

    clsDataSource source = SourceWithColumns({u"age"_s, u"name"_s, u"age"_s});
    EXPECT_TRUE(source.ColumnNameUsedElsewhere(u"age")) << "the first row has it too";
    EXPECT_TRUE(source.ColumnNameUsedElsewhere(u"name"));
    EXPECT_EQ(source.GetPosition(), 2) << "the cursor stays";
    source.MoveFirst();
    source.MoveNext();
    EXPECT_FALSE(source.ColumnNameUsedElsewhere(u"name"));
    for (const int none : {-1, 3}) {
        source.SetPosition(none);
        EXPECT_TRUE(source.ColumnNameUsedElsewhere(u"name")) << "of no question in particular";
    }
}
