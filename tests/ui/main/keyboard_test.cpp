#include "model/question_types.h"
#include "platform/tool_runner.h"
#include "support/print.h"
#include "ui/support/designer.h"
#include "ui/support/typist.h"

#include <QMessageBox>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString example = QStringLiteral(TEST_DATA "/../../examples/SiteVisit.vmp");

bool BoxAsks()
{
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}

bool ItemsAreAsked()
{
    return QApplication::activeModalWidget()->windowTitle().endsWith(u"Step 5"_s);
}

void TypeQuestion(Typist &typist, const Project &project, const QuestionRow &question)
{
    typist.Key(Qt::Key_End);
    typist.Key(Qt::Key_Home);
    for (size_t type = 0; question.Type != questionTypes[type].name; ++type)
        typist.Key(Qt::Key_Down);
    typist.Key(Qt::Key_Return);
    typist.Text(question.Title);
    typist.Key(Qt::Key_Return);
    typist.Text(question.ColumnName); // in place of the proposed name, which is selected
    typist.Key(Qt::Key_Return);
    typist.Text(question.Question);
    if (HasItems(question.Type)) {
        typist.Key(Qt::Key_N, Qt::AltModifier);
        typist.Await("step 5", ItemsAreAsked);
        for (const ItemRow &item : project.source.Items().Rows()) {
            if (item.Id != question.Id)
                continue;
            typist.Key(Qt::Key_Insert);
            typist.Text(item.Item);
            typist.Key(Qt::Key_Return);
        }
    }
    typist.Key(Qt::Key_F, Qt::AltModifier);
    typist.Await("another one?", BoxAsks);
}

void TypeFormInformation(Typist &typist, const Project &project)
{
    typist.Text(project.FormName);
    typist.TabTo("txtAppVersion");
    typist.Text(project.FormVersion);
    typist.TabTo("txtAppDesc");
    typist.Text(project.Description);
    typist.TabTo("cmd1_Next");
    typist.Key(Qt::Key_Space);
}

void ReviewAndCreate(Typist &typist)
{
    typist.TabTo("cmdReviewForm");
    typist.Key(Qt::Key_Space);
    typist.Await("that it is valid", BoxAsks);
    typist.Key(Qt::Key_Return);
    typist.TabTo("cmdCreateForm");
    typist.Key(Qt::Key_Space);
    typist.Await("that it was created", BoxAsks);
    typist.Key(Qt::Key_Return);
}

TEST(Keyboard, DesignsSavesAndCreatesAWholeInspection)
{
    const Result<Project> loaded = LoadProject(example);
    ASSERT_TRUE(loaded);
    const Project &project = *loaded;
    Designer designer;
    designer.runTool = [](const ToolCall &call) {
        return RunAndWait(call, {.folders = {QStringLiteral(TOOL_FOLDER)}, .timeoutSeconds = 60});
    };

    Typist typist;
    TypeFormInformation(typist, project);
    typist.TabTo("DataGrid1");
    typist.Key(Qt::Key_Insert);
    const auto &questions = project.source.Questions().Rows();
    for (const QuestionRow &question : questions) {
        TypeQuestion(typist, project, question);
        const bool last = question.Id == questions.back().Id;
        typist.Key(last ? Qt::Key_N : Qt::Key_Y, Qt::AltModifier);
        typist.Await("the answer", [] { return !BoxAsks(); });
    }
    typist.TabTo("cmd2_Next");
    typist.Key(Qt::Key_Space);
    typist.Text(project.FormPath);
    typist.TabTo("cmd3_Next");
    typist.Key(Qt::Key_Space);
    typist.Key(Qt::Key_S, Qt::ControlModifier);
    typist.Text(u"SiteVisit"_s);
    typist.Key(Qt::Key_Return);
    ReviewAndCreate(typist);
    ASSERT_TRUE(typist.Run());

    EXPECT_EQ(BytesOf(designer.projects + u"/SiteVisit.vmp"_s), BytesOf(example));
    EXPECT_EQ(BytesOf(designer.projects + u"/SiteVisit.prc"_s).mid(60, 8), "kelpWmpt");
    EXPECT_FALSE(designer.ProjectChanged());
}

TEST(Keys, AreThoseOfThePlatform)
{
    const Designer designer;
    const struct {
        const char *action;
        QKeySequence key;
    } rows[] = {
        {"mnuFileNew", QKeySequence::New},     {"mnuFileOpen", QKeySequence::Open},
        {"mnuFileSave", QKeySequence::Save},   {"mnuFileSaveAS", Qt::CTRL | Qt::SHIFT | Qt::Key_S},
        {"mnuFileExit", Qt::CTRL | Qt::Key_Q},
    };
    for (const auto &row : rows)
        EXPECT_TRUE(designer.Find<QAction>(row.action)->shortcuts().contains(row.key))
            << row.action;
}

} // namespace
