#include "ui/main/file_questions.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(Open, ReadsTheChosenProjectAndReviewsItInSilence)
{
    const Designer designer;
    const PromptScript prompts({sample});
    designer.ClickTab(3);
    designer.Click("cmdToolbar_2");
    EXPECT_EQ(prompts.fileDialogs(), QStringList{openFile});
    EXPECT_TRUE(prompts.boxes().empty());
    EXPECT_EQ(designer.window.document().path(), sample);
    EXPECT_EQ(designer.project().source.QuestionCount(), 10);
    EXPECT_EQ(designer.Text("txtAppName"), designer.project().FormName);
    EXPECT_EQ(designer.Step(), 1);
    EXPECT_FALSE(designer.ProjectChanged());
    EXPECT_EQ(designer.Mark(4), StepMarkValid);
}

TEST(Open, LeavesTheProjectAloneWhenTheDialogIsCancelled)
{
    const Designer designer(sample);
    const PromptScript prompts({u""_s});
    designer.Choose("mnuFileOpen");
    EXPECT_EQ(prompts.fileDialogs(), QStringList{openFile});
    EXPECT_EQ(designer.window.document().path(), sample);
    EXPECT_EQ(designer.project().source.QuestionCount(), 10);
}

TEST(Open, GoesOnAfterASaveThatDidNotHappen)
{
    const Designer designer;
    MakeChanged(designer);
    const PromptScript prompts({u"Yes"_s, u""_s, sample});
    designer.Choose("mnuFileOpen");
    EXPECT_EQ(prompts.texts(), QStringList{saveQuestion});
    EXPECT_EQ(prompts.fileDialogs(), (QStringList{saveAs, openFile}));
    EXPECT_EQ(designer.window.document().path(), sample);
}

TEST(Open, StopsAtCancelAlone)
{
    const Designer designer;
    MakeChanged(designer);
    const PromptScript prompts({u"Cancel"_s});
    designer.Choose("mnuFileOpen");
    EXPECT_EQ(prompts.texts(), QStringList{saveQuestion});
    EXPECT_TRUE(prompts.fileDialogs().isEmpty());
    EXPECT_EQ(designer.project().FormName, u"Survey"_s);
}

TEST(Open, TellsTheHintWhereTheFileIsMissing)
{
    Designer designer;
    const PromptScript prompts({u"OK"_s});
    designer.window.OpenProject(u"/none/a.vmp"_s, u"Look elsewhere."_s);
    ASSERT_EQ(prompts.boxes().size(), 1u);
    EXPECT_TRUE(prompts.boxes()[0].informative.startsWith(u"/none/a.vmp: "_s));
    EXPECT_TRUE(prompts.boxes()[0].informative.endsWith(u"\nLook elsewhere."_s));
}

TEST(Open, RefusesAFileThatIsNoProject)
{
    const Designer designer(sample);
    QTemporaryDir folder;
    const QString path = folder.filePath(u"no.vmp"_s);
    ASSERT_TRUE(WriteBytes(path, "no project"));
    const PromptScript prompts({path, u"OK"_s});
    designer.Choose("mnuFileOpen");
    EXPECT_EQ(prompts.fileDialogs(), QStringList{openFile});
    ASSERT_EQ(prompts.boxes().size(), 1u);
    EXPECT_EQ(prompts.boxes()[0].text, u"This file is not a valid VMP file."_s);
    EXPECT_TRUE(prompts.boxes()[0].informative.startsWith(path + u":1: "_s));
    EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Critical);
    EXPECT_EQ(designer.window.document().path(), QString());
    EXPECT_EQ(designer.project().source.QuestionCount(), 0);
    EXPECT_EQ(designer.Text("txtAppName"), QString());
}

} // namespace
