#include "editing/project_step.h"

#include "editing/property_rules.h"
#include "editing/question_list.h"
#include "editing/wizard_rules.h"
#include "model/project_writer.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

Project Sample(int questions, int items)
{
    Project project{.FormName = u"Survey"_s, .FormPath = u"C:\\Data"_s};
    for (int n = 1; n <= questions; ++n) {
        QStringList list;
        for (int item = 1; item <= items; ++item)
            list += u"Item %1 of %2"_s.arg(item).arg(n);
        AppendQuestion(project.source, {.title = u"Title %1"_s.arg(n),
                                        .question = u"Question %1"_s.arg(n),
                                        .type = u"Pulldown List"_s,
                                        .columnName = u"Q%1"_s.arg(n),
                                        .items = list});
    }
    return project;
}

/// All that a project file has, and where the cursor stands.
QByteArray Everything(const Project &project)
{
    return *WriteProject(project) + QByteArray::number(project.source.GetPosition());
}

struct Doing {
    const char *what;
    void (*change)(Project &project);
};

void Replace(clsDataSource &source, const Question &question)
{
    ReplaceCurrentQuestion(source, question);
}

const Doing doings[] = {
    {"a question is appended, and its title remembered",
     [](Project &project) {
         AppendQuestion(project.source, {.title = u"New"_s,
                                         .question = u"New?"_s,
                                         .type = u"Checkboxes"_s,
                                         .columnName = u"NEW"_s,
                                         .items = {u"One"_s, u"Two"_s}});
         project.TitleList += u"New"_s;
     }},
    {"the first is removed",
     [](Project &project) {
         project.source.MoveFirst();
         RemoveQuestion(project.source);
     }},
    {"one between is removed",
     [](Project &project) {
         project.source.SetPosition(2);
         RemoveQuestion(project.source);
     }},
    {"the last is removed",
     [](Project &project) {
         project.source.MoveLast();
         RemoveQuestion(project.source);
     }},
    {"one is moved up",
     [](Project &project) {
         project.source.SetPosition(3);
         MoveQuestionUp(project.source);
     }},
    {"one is moved down",
     [](Project &project) {
         project.source.SetPosition(0);
         MoveQuestionDown(project.source);
     }},
    {"one is duplicated",
     [](Project &project) {
         project.source.SetPosition(1);
         EXPECT_TRUE(DuplicateQuestion(project.source));
     }},
    {"the items of one are others",
     [](Project &project) {
         project.source.SetPosition(1);
         Replace(project.source, {.title = u"Title"_s,
                                  .question = u"Why?"_s,
                                  .type = u"Checkboxes"_s,
                                  .columnName = u"WHY"_s,
                                  .items = {u"Item 2 of 2"_s, u"Item 1 of 2"_s, u"more"_s}});
     }},
    {"one loses its items",
     [](Project &project) {
         project.source.SetPosition(1);
         Replace(project.source, {.title = u"Title"_s,
                                  .question = u"Why?"_s,
                                  .type = u"Text"_s,
                                  .columnName = u"WHY"_s});
     }},
    {"two texts are others",
     [](Project &project) {
         project.FormName = u"Other"_s;
         project.Description = u"About"_s;
     }},
};

TEST(ProjectStep, IsTakenBackAndRepeated)
{
    for (const Doing &doing : doings) {
        SCOPED_TRACE(doing.what);
        Project project = Sample(5, 3);
        const Project before = project;
        doing.change(project);
        const Project after = project;
        const ProjectStep step(before, after);
        EXPECT_FALSE(step.IsEmpty());

        step.TakeBack(project);
        EXPECT_EQ(*WriteProject(project), *WriteProject(before));
        step.Repeat(project);
        EXPECT_EQ(Everything(project), Everything(after));
    }
}

TEST(ProjectStep, IsTakenBackOneAfterTheOther)
{
    Project project = Sample(12, 3);
    const QByteArray begun = *WriteProject(project);
    std::vector<ProjectStep> steps;
    for (int round = 0; round < 3; ++round) {
        for (const Doing &doing : doings) {
            const Project before = project;
            doing.change(project);
            steps.emplace_back(before, project);
        }
    }
    const QByteArray ended = *WriteProject(project);
    for (auto step = steps.rbegin(); step != steps.rend(); ++step)
        step->TakeBack(project);
    EXPECT_EQ(*WriteProject(project), begun);
    for (const ProjectStep &step : steps)
        step.Repeat(project);
    EXPECT_EQ(*WriteProject(project), ended);
}

TEST(ProjectStep, IsEmptyWhereNothingDiffers)
{
    Project project = Sample(2, 2);
    const Project before = project;
    project.source.MoveFirst();
    EXPECT_TRUE(ProjectStep(before, project).IsEmpty());
}

TEST(ProjectStep, KnowsWhatItChanges)
{
    Project project = Sample(2, 2);
    const Project before = project;
    project.FormVersion = u"2.0"_s;
    const ProjectStep text(before, project);
    EXPECT_EQ(text.ChangedField(), FormField::Version);
    EXPECT_FALSE(text.ChangesQuestions());

    RemoveQuestion(project.source);
    EXPECT_TRUE(ProjectStep(before, project).ChangesQuestions());
}

TEST(ProjectStep, BecomesOneWithTheNextThatChangesTexts)
{
    Project project;
    const Project empty = project;
    project.FormName = u"A"_s;
    ProjectStep step(empty, project);
    const Project first = project;
    project.FormName = u"AB"_s;
    project.FormVersion = u"1"_s;
    step.Append(ProjectStep(first, project));
    step.TakeBack(project);
    EXPECT_EQ(*WriteProject(project), *WriteProject(empty));
    step.Repeat(project);
    EXPECT_EQ(project.FormName, u"AB"_s);
    EXPECT_EQ(project.FormVersion, u"1"_s);
}

} // namespace
