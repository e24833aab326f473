#include "validation/project_review.h"

#include "model/project_file.h"
#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

Project ProjectWith(int questions)
{
    Project project{.FormName = u"Survey"_s, .FormPath = u"C:\\Data"_s};
    for (int i = 1; i <= questions; ++i)
        project.source.Questions().Append({.Order = i, .Type = u"Text"_s, .Id = i});
    return project;
}

QStringList ListTexts(const ReviewResult &result)
{
    QStringList texts;
    for (const ReviewEntry &entry : result.entries)
        texts << ListText(entry);
    return texts;
}

const QString noName = u"Step1\t\tPlease enter a name for your Vellsheet."_s;
const QString spacesInVersion = u"Step1\t\tSpaces in the Vellsheet Version are not allowed."_s;
const QString returns = u"Step1\t\tCarriage returns are not allowed in description."_s;
const QString noQuestion = u"Step2\t\tYour Vellsheet requires a minimum of one question."_s;
const QString tooMany = u"Step2\t\tThe maximum number of questions is 128."_s;
const QString noFolder = u"Step3\t\tPlease provide a default data directory path."_s;
const QString badFolder = u"Step3\t\tThis is not a valid directory name."_s;

} // namespace

using Flags = std::array<bool, 3>;
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): in the order in which a row is read
const struct {
    const char *what;
    QString name, version, description;
    int questions;
    QString folder;
    Flags failed;
    QStringList entries;
} reviews[] = {
    {"nothing wrong", u"Survey"_s, u"1.0"_s, u"Birds"_s, 1, u"C:\\Data"_s, {}, {}},
    {"nothing wrong with the most questions", u"Survey"_s, {}, {}, 128, u"C:\\"_s, {}, {}},
    {"a new project", {}, {}, {}, 0, {}, Flags{true, true, true}, {noName, noQuestion, noFolder}},
    {"everything",
     u" "_s,
     u"1 0"_s,
     u"a\nb"_s,
     129,
     u"x"_s,
     Flags{true, true, true},
     {noName, spacesInVersion, returns, tooMany, badFolder}},
    {"version and description under a valid name",
     u"Survey"_s,
     u"1 0"_s,
     u"a\nb"_s,
     1,
     u"C:\\Data"_s,
     Flags{true, false, false},
     {spacesInVersion, returns}},
    {"the description does not hide the name's failure",
     {},
     {},
     u"Birds"_s,
     1,
     u"C:\\Data"_s,
     Flags{true, false, false},
     {noName}},
    {"step 2 alone",
     u"Survey"_s,
     {},
     {},
     0,
     u"C:\\Data"_s,
     Flags{false, true, false},
     {noQuestion}},
    {"step 3 alone", u"Survey"_s, {}, {}, 1, u"Data"_s, Flags{false, false, true}, {badFolder}},
};

TEST(ProjectReview, ListsWhatFailsInTheOrderOfTheRules)
{
    for (const auto &row : reviews) {
        SCOPED_TRACE(row.what);
        Project project = ProjectWith(row.questions);
        project.FormName = row.name;
        project.FormVersion = row.version;
        project.Description = row.description;
        project.FormPath = row.folder;

        const ReviewResult result = ReviewProject(project);
        EXPECT_EQ(result.stepFailed, row.failed);
        EXPECT_EQ(ListTexts(result), row.entries);
        EXPECT_EQ(result.Passed(), row.entries.isEmpty());
    }
}

TEST(ProjectReview, EntriesSayWhichRuleFailed)
{
    Project project = ProjectWith(0);
    project.FormName = u"a b"_s;
    project.FormVersion = u"a b"_s;
    project.Description = u"a\nb"_s;
    project.FormPath = u"a b"_s;

    const struct {
        int step;
        QLatin1StringView code, field;
    } rows[] = {
        {1, "invalid-form-name"_L1, "form name"_L1},
        {1, "invalid-form-version"_L1, "form version"_L1},
        {1, "invalid-description"_L1, "description"_L1},
        {2, "invalid-question-count"_L1, "questions"_L1},
        {3, "invalid-data-folder"_L1, "data folder"_L1},
    };
    const ReviewResult result = ReviewProject(project);
    ASSERT_EQ(result.entries.size(), std::size(rows));
    for (size_t i = 0; i < std::size(rows); ++i) {
        EXPECT_EQ(result.entries[i].step, rows[i].step);
        EXPECT_EQ(result.entries[i].code, rows[i].code);
        EXPECT_EQ(result.entries[i].field, rows[i].field);
    }
}

TEST(ProjectReview, TrimsTheFormInformationWhetherItPassesOrNot)
{
    const struct {
        const char *what;
        QString name, version, description, folder;
        bool passes;
    } rows[] = {
        {"all pass", u"Survey"_s, u"1.0"_s, u"\tBirds  seen"_s, u"C:\\Data"_s, true},
        {"all fail", u"My Survey"_s, u"1 0"_s, u"a\nb"_s, u"Data"_s, false},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        Project project = ProjectWith(1);
        project.FormName = u"  %1 "_s.arg(row.name);
        project.FormVersion = u" %1  "_s.arg(row.version);
        project.Description = u" %1 "_s.arg(row.description);
        project.FormPath = u" %1 "_s.arg(row.folder);

        EXPECT_EQ(ReviewProject(project).Passed(), row.passes);
        EXPECT_EQ(project.FormName, row.name);
        EXPECT_EQ(project.FormVersion, row.version);
        EXPECT_EQ(project.Description, row.description);
        EXPECT_EQ(project.FormPath, row.folder);
    }
}

TEST(ProjectReview, ChangesNothingElse)
{
    Project project = ProjectWith(3);
    project.TitleList = {u""_s, u" Bird "_s};
    project.source.SetMaxId(7);
    project.source.Questions().Append({.Order = 9,
                                       .Title = u" t "_s,
                                       .Question = u" q "_s,
                                       .Type = u" Text "_s,
                                       .ColumnName = u" c "_s,
                                       .Id = 5});
    project.source.Items().Append({.Id = 5, .Item = u" i "_s});
    project.source.MoveFirst();
    project.source.MoveNext();
    const auto position = project.source.GetPosition();

    EXPECT_TRUE(ReviewProject(project).Passed());

    EXPECT_EQ(project.TitleList, (QStringList{u""_s, u" Bird "_s}));
    EXPECT_EQ(project.source.MaxId(), 7);
    EXPECT_EQ(project.source.QuestionCount(), 4);
    EXPECT_EQ(project.source.GetPosition(), position);
    project.source.MoveLast();
    const QuestionRow &question = project.source.Questions().Current();
    EXPECT_EQ(question.Order, 9);
    EXPECT_EQ(question.Title, u" t "_s);
    EXPECT_EQ(question.Question, u" q "_s);
    EXPECT_EQ(question.Type, u" Text "_s);
    EXPECT_EQ(question.ColumnName, u" c "_s);
    EXPECT_EQ(question.Id, 5);
    EXPECT_EQ(project.source.Items().Count(), 1);
    EXPECT_EQ(project.source.Items().Current().Id, 5);
    EXPECT_EQ(project.source.Items().Current().Item, u" i "_s);
}

TEST(ProjectReview, PassesAProjectOfTheDesigner)
{
    Result<Project> project = LoadProject(DataFile(u"projects/SiteVisit.vmp"_s));
    ASSERT_TRUE(project);
    EXPECT_EQ(ListTexts(ReviewProject(*project)), QStringList());
}

TEST(ProjectReview, AnEntryKnowsWhatItIsAboutAndWhereItLeads)
{
    Project project = ProjectWith(0);
    project.FormName = u"a b"_s;
    project.FormVersion = u"1.0 beta"_s;
    project.Description = u"a\nb"_s;
    project.FormPath = u"x"_s;
    const struct {
        const char *what;
        int step;
        QLatin1StringView field;
        std::optional<FormField> leadsTo;
    } rows[] = {
        {"the name", 1, "form name"_L1, FormField::Name},
        {"the version", 1, "form version"_L1, FormField::Version},
        {"the description leads to the name", 1, "description"_L1, FormField::Name},
        {"the questions have no box", 2, "questions"_L1, std::nullopt},
        {"the data folder", 3, "data folder"_L1, FormField::DataFolder},
    };
    const std::vector<ReviewEntry> entries = ReviewProject(project).entries;
    ASSERT_EQ(entries.size(), std::size(rows));
    for (size_t i = 0; i < entries.size(); ++i) {
        SCOPED_TRACE(rows[i].what);
        EXPECT_EQ(entries[i].step, rows[i].step);
        EXPECT_EQ(entries[i].field, rows[i].field);
        EXPECT_EQ(entries[i].leadsTo, rows[i].leadsTo);
    }
}

TEST(ProjectReview, ChecksOneStepAlone)
{
    Project project = ProjectWith(0);
    project.FormName = u" Survey "_s;
    project.FormVersion = u"1.0 beta"_s;

    const StepVerdict information = CheckStep(1, project);
    EXPECT_TRUE(information.failed);
    EXPECT_EQ(information.text, u"\nSpaces in the Vellsheet Version are not allowed.\n"_s);
    EXPECT_EQ(project.FormName, u"Survey"_s);

    EXPECT_EQ(CheckStep(2, project).text, u"Your Vellsheet requires a minimum of one question."_s);
    EXPECT_FALSE(CheckStep(3, project).failed);
    EXPECT_EQ(CheckStep(3, project).text, QString());
}
