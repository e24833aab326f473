#include "exchange/merged_project.h"

#include "sample_projects.h"

#include <limits>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QStringList ColumnNames(const Project &project)
{
    QStringList names;
    for (const QuestionRow &row : project.source.Questions().Rows())
        names += row.ColumnName;
    return names;
}

Project Questions(int count)
{
    QStringList names;
    for (int n = 1; n <= count; ++n)
        names += u"Q%1"_s.arg(n);
    return ProjectWith(names);
}

QString RefusalOf(Project &project, const Project &other)
{
    const Outcome appended = AppendProject(project, other);
    return appended ? u"appended"_s : appended.error().text;
}

} // namespace

TEST(AppendProject, PutsTheQuestionsBehindThoseThatAreThere)
{
    Project project = ProjectWith({u"A"_s, u"B"_s});
    project.FormName = u"First"_s;
    Project other = ProjectWithItems({u"Wren"_s, u"Robin"_s});
    other.FormName = u"Second"_s;
    ASSERT_EQ(RefusalOf(project, other), u"appended"_s);
    EXPECT_EQ(project.FormName, u"First"_s);
    EXPECT_EQ(ColumnNames(project), (QStringList{u"A"_s, u"B"_s, u"BIRDS"_s}));
    const QuestionRow &row = project.source.Questions().Rows()[2];
    EXPECT_EQ(row, (QuestionRow{.Order = 3,
                                .Title = u"Birds"_s,
                                .Question = u"Which birds?"_s,
                                .Type = u"Checkboxes"_s,
                                .ColumnName = u"BIRDS"_s,
                                .Id = 3}));
    EXPECT_EQ(project.source.ItemsOf(3), (QStringList{u"Wren"_s, u"Robin"_s}));
    EXPECT_EQ(project.source.MaxId(), 4);
}

TEST(AppendProject, MakesColumnNamesUnique)
{
    Project project = ProjectWith({u"A"_s, u"A(1)"_s});
    ASSERT_EQ(RefusalOf(project, ProjectWith({u"A"_s, u"a"_s, u"A(1)"_s})), u"appended"_s);
    EXPECT_EQ(ColumnNames(project),
              (QStringList{u"A"_s, u"A(1)"_s, u"A(2)"_s, u"a"_s, u"A(1)(1)"_s}));
}

TEST(AppendProject, RefusesAColumnNameThatGrowsTooLong)
{
    const QString longest(255, u'x');
    Project project = ProjectWith({longest});
    EXPECT_EQ(RefusalOf(project, ProjectWith({u"A"_s, longest})),
              u"Column Name is too long to copy: "_s + longest);
    EXPECT_EQ(ColumnNames(project), QStringList(longest)) << "nothing was added";
}

TEST(AppendProject, RefusesMoreQuestionsThanThereArePlaces)
{
    Project project = Questions(120);
    EXPECT_EQ(RefusalOf(project, Questions(9)),
              u"There are 8 places left for questions, and this project has 9."_s);
    EXPECT_EQ(project.source.QuestionCount(), 120);
    EXPECT_EQ(RefusalOf(project, Questions(7)), u"appended"_s);
    EXPECT_EQ(RefusalOf(project, Questions(2)),
              u"There is 1 place left for questions, and this project has 2."_s);
    EXPECT_EQ(RefusalOf(project, Questions(1)), u"appended"_s);
    EXPECT_EQ(RefusalOf(project, Questions(1)),
              u"There are 0 places left for questions, and this project has 1."_s);
    EXPECT_EQ(RefusalOf(project, Questions(0)), u"appended"_s);
}

TEST(AppendProject, GivesIdsThatNobodyHas)
{
    Project project = ProjectWith({u"A"_s});
    project.source.SetMaxId(1); // a file may say so, though A has it
    project.source.AppendItems(40, {u"of nobody"_s});
    ASSERT_EQ(RefusalOf(project, ProjectWithItems({u"Wren"_s})), u"appended"_s);
    const int id = project.source.Questions().Rows()[1].Id;
    EXPECT_EQ(id, 41);
    EXPECT_EQ(project.source.ItemsOf(id), QStringList(u"Wren"_s));
}

TEST(AppendProject, RefusesWhereNoIdIsLeft)
{
    Project project = ProjectWith({u"A"_s});
    project.source.SetMaxId(std::numeric_limits<int>::max());
    EXPECT_EQ(RefusalOf(project, Questions(0)), u"appended"_s);
    EXPECT_EQ(RefusalOf(project, Questions(1)), u"There are no Ids left for its questions."_s);
    project.source.SetMaxId(std::numeric_limits<int>::max() - 2);
    EXPECT_EQ(RefusalOf(project, Questions(2)), u"appended"_s);
    EXPECT_EQ(project.source.Questions().Rows()[2].Id, std::numeric_limits<int>::max() - 1);
}

TEST(AppendProject, RemembersTheTitlesOfBoth)
{
    Project project, other;
    ASSERT_EQ(RefusalOf(project, other), u"appended"_s);
    EXPECT_EQ(project.TitleList, QStringList(QString()));
    other.TitleList = {u"a"_s, u"b"_s};
    ASSERT_EQ(RefusalOf(project, other), u"appended"_s);
    EXPECT_EQ(project.TitleList, (QStringList{u"a"_s, u"b"_s}));
    other.TitleList = {u"c"_s, u"b"_s};
    ASSERT_EQ(RefusalOf(project, other), u"appended"_s);
    EXPECT_EQ(project.TitleList, (QStringList{u"a"_s, u"b"_s, u"c"_s}));
}

TEST(AppendProject, RemembersTheLastTenTitles)
{
    Project project, other;
    project.TitleList = {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s};
    other.TitleList = {u"9"_s, u"10"_s, u"11"_s};
    ASSERT_EQ(RefusalOf(project, other), u"appended"_s);
    EXPECT_EQ(project.TitleList, (QStringList{u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s,
                                              u"8"_s, u"9"_s, u"10"_s, u"11"_s}));
}
