#include "platform/tool_runner.h"
#include "support/print.h"
#include "ui/main/typed_form.h"
#include "ui/support/designer.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString example = QStringLiteral(TEST_DATA "/../../examples/SiteVisit.vmp");

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
    TypeQuestions(typist, project);
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
