#include "support/ordinary_user.h"
#include "support/print.h"
#include "ui/support/designer.h"
#include "ui/support/prompt_script.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString sample = DataFile(u"projects/SiteVisit.vmp"_s);
const QString question = u"Do you want to save changes to your Vellsheet project?"_s;
const QString saveAs = u"Save File As "_s;
const QString open = u"Open File "_s;

void MakeChanged(const Designer &designer)
{
    designer.Type("txtAppName", u"Survey"_s);
    ASSERT_TRUE(designer.ProjectChanged());
}

TEST(New, AsksNothingWithoutChanges)
{
    const Designer designer(sample);
    const PromptScript prompts;
    designer.ClickTab(3);
    designer.Choose("mnuFileNew");

    EXPECT_TRUE(prompts.boxes().empty());
    EXPECT_EQ(designer.Step(), 1);
    EXPECT_EQ(designer.project().source.QuestionCount(), 0);
    EXPECT_EQ(designer.project().source.Items().Count(), 0);
    EXPECT_EQ(designer.project().source.MaxId(), 1);
    EXPECT_EQ(designer.project().TitleList, QStringList{QString()});
    EXPECT_EQ(designer.window.document().path(), QString());
    for (const char *box : {"txtAppName", "txtAppVersion", "txt3_appDir"})
        EXPECT_EQ(designer.Text(box), QString());
    EXPECT_EQ(designer.Find<QPlainTextEdit>("txtAppDesc")->toPlainText(), QString());
    EXPECT_FALSE(designer.ProjectChanged());
    for (int step = 1; step <= 4; ++step)
        EXPECT_EQ(designer.Mark(step), StepMarkInvalid);
}

TEST(New, ClearsTheErrorList)
{
    const Designer designer;
    designer.ClickTab(4);
    const PromptScript prompts({u"OK"_s});
    designer.Click("cmdReviewForm");
    EXPECT_EQ(prompts.texts(), QStringList{u"There are errors in your Vellsheet. "
                                           "Please check the Error List for details."_s});
    ASSERT_EQ(designer.Find<QListWidget>("lstError")->count(), 3);
    designer.Choose("mnuFileNew");
    EXPECT_EQ(designer.Find<QListWidget>("lstError")->count(), 0);
}

TEST(New, AsksOnceAndGoesByTheAnswer)
{
    const struct {
        const char *what;
        QStringList answers;
        bool proceeds;
        qsizetype fileDialogs;
    } rows[] = {
        {"no", {u"No"_s}, true, 0},
        {"cancel", {u"Cancel"_s}, false, 0},
        {"closing the box is cancel", {u""_s}, false, 0},
        {"yes, but no file is chosen", {u"Yes"_s, u""_s}, false, 1},
        {"yes, and a file", {u"Yes"_s, u"kept.vmp"_s}, true, 1},
    };
    for (const auto &row : rows) {
        for (const char *command : {"mnuFileNew", "cmdToolbar_0"}) {
            SCOPED_TRACE(std::string(row.what) + ", " + command);
            const Designer designer;
            MakeChanged(designer);
            const PromptScript prompts(row.answers);
            if (std::string(command) == "mnuFileNew")
                designer.Choose(command);
            else
                designer.Click(command);

            ASSERT_EQ(prompts.boxes().size(), 1u);
            EXPECT_EQ(prompts.boxes()[0].text, question);
            EXPECT_EQ(prompts.boxes()[0].defaultButton, u"Cancel"_s);
            EXPECT_EQ(prompts.fileDialogs().size(), row.fileDialogs);
            EXPECT_EQ(designer.project().FormName, row.proceeds ? u""_s : u"Survey"_s);
            EXPECT_EQ(designer.ProjectChanged(), !row.proceeds);
        }
    }
}

TEST(Save, WritesTheFileThatTheUserChooses)
{
    const Designer designer;
    MakeChanged(designer);
    const PromptScript prompts({u"survey"_s});
    designer.Choose("mnuFileSave");

    EXPECT_EQ(prompts.fileDialogs(), QStringList{saveAs});
    const QString path = designer.projects + u"/survey.vmp"_s;
    EXPECT_EQ(designer.window.document().path(), path)
        << "in the projects folder, with the extension";
    EXPECT_TRUE(BytesOf(path).contains("<FormName><![CDATA[Survey]]></FormName>"));
    EXPECT_FALSE(designer.ProjectChanged());
}

TEST(Save, WritesAKnownFileWithoutADialog)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"a.vmp"_s);
    ASSERT_TRUE(QFile::copy(sample, path));
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    const Designer designer(path);
    designer.Type("txtAppVersion", u"7"_s);
    const PromptScript prompts;
    designer.Click("cmdToolbar_1");
    EXPECT_TRUE(prompts.fileDialogs().isEmpty());
    EXPECT_FALSE(designer.ProjectChanged());
    EXPECT_TRUE(BytesOf(path).contains("7]]></FormVersion>"));
}

TEST(SaveAs, StartsWithTheFolderAndTheNameOfTheProject)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"a.vmp"_s);
    ASSERT_TRUE(QFile::copy(sample, path));
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    const Designer designer(path);
    const PromptScript prompts({u"b"_s});
    designer.Choose("mnuFileSaveAS");
    EXPECT_EQ(prompts.fileDialogs(), QStringList{saveAs});
    EXPECT_EQ(prompts.fileNames(), QStringList{u"a.vmp"_s});
    EXPECT_EQ(designer.window.document().path(), folder.filePath(u"b.vmp"_s));
    EXPECT_EQ(BytesOf(folder.filePath(u"b.vmp"_s)), BytesOf(path));
}

TEST(SaveAs, StartsInTheProjectsFolderForANewProject)
{
    const Designer designer;
    const PromptScript prompts({u"c"_s});
    designer.Choose("mnuFileSaveAS");
    EXPECT_EQ(prompts.fileDialogs(), QStringList{saveAs});
    EXPECT_EQ(prompts.fileNames(), QStringList{u""_s});
    EXPECT_EQ(designer.window.document().path(), designer.projects + u"/c.vmp"_s);
}

TEST(Save, SaysWhyItCouldNotBeDoneAndLeavesTheOldFileWhole)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"a.vmp"_s);
    ASSERT_TRUE(QFile::copy(sample, path));
    const QByteArray before = BytesOf(path);
    const Designer designer(path);
    designer.Find<QLineEdit>("txtAppVersion")->setText(u"\u0416"_s);

    const PromptScript prompts({u"OK"_s});
    designer.Choose("mnuFileSave");
    ASSERT_EQ(prompts.boxes().size(), 1u);
    EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Critical);
    EXPECT_EQ(prompts.boxes()[0].title, u"Vellumo Designer"_s);
    EXPECT_TRUE(prompts.boxes()[0].text.contains(u"\u0416"_s)) << "names the character";
    EXPECT_EQ(prompts.boxes()[0].informative, path + u": "_s + prompts.boxes()[0].text);
    EXPECT_EQ(BytesOf(path), before);
    EXPECT_TRUE(designer.ProjectChanged());
    EXPECT_EQ(designer.window.document().path(), path);
}

TEST(Save, SaysWhyAFolderCannotBeWritten)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"a.vmp"_s);
    ASSERT_TRUE(QFile::copy(sample, path));
    const QByteArray before = BytesOf(path);
    const Designer designer(path);
    designer.Type("txtAppVersion", u"7"_s);

    QFile::setPermissions(folder.path(),
                          QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    const PromptScript prompts({u"OK"_s});
    {
        const AsOrdinaryUser ordinary;
        designer.Choose("mnuFileSave");
    }
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    ASSERT_EQ(prompts.boxes().size(), 1u);
    EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Critical);
    EXPECT_EQ(prompts.boxes()[0].text, u"Permission denied"_s);
    EXPECT_EQ(prompts.boxes()[0].informative, path + u": Permission denied"_s);
    EXPECT_EQ(BytesOf(path), before);
    EXPECT_TRUE(designer.ProjectChanged());
}

TEST(Save, TellsWhichTextMakesTheFileUnreadable)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"a.vmp"_s);
    ASSERT_TRUE(QFile::copy(sample, path));
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    const Designer designer(path);
    designer.Find<QLineEdit>("txtAppVersion")->setText(u"1]]>2"_s);

    const PromptScript prompts({u"OK"_s, u"Yes"_s, u"OK"_s});
    designer.Choose("mnuFileSave");
    ASSERT_EQ(prompts.boxes().size(), 1u);
    EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Warning);
    EXPECT_EQ(prompts.boxes()[0].title, u"Vellumo Designer"_s);
    EXPECT_EQ(prompts.boxes()[0].text,
              u"The project is saved, but its file cannot be opened again: \"]]>\" ends a text too "
              "early. Please change what has it, and save again:\n\nform version: \"1]]>2\""_s);
    EXPECT_TRUE(BytesOf(path).contains("<FormVersion><![CDATA[1]]>2]]></FormVersion>"));
    EXPECT_FALSE(designer.ProjectChanged()) << "it was saved all the same";

    designer.Find<QLineEdit>("txtAppVersion")->setText(u"2]]>"_s);
    designer.Choose("mnuFileNew");
    EXPECT_EQ(prompts.texts().size(), 3);
    EXPECT_EQ(designer.project().FormName, u""_s) << "and what was to come after it came";
}

TEST(Open, ReadsTheChosenProjectAndReviewsItInSilence)
{
    const Designer designer;
    const PromptScript prompts({sample});
    designer.ClickTab(3);
    designer.Click("cmdToolbar_2");
    EXPECT_EQ(prompts.fileDialogs(), QStringList{open});
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
    EXPECT_EQ(prompts.fileDialogs(), QStringList{open});
    EXPECT_EQ(designer.window.document().path(), sample);
    EXPECT_EQ(designer.project().source.QuestionCount(), 10);
}

TEST(Open, GoesOnAfterASaveThatDidNotHappen)
{
    const Designer designer;
    MakeChanged(designer);
    const PromptScript prompts({u"Yes"_s, u""_s, sample});
    designer.Choose("mnuFileOpen");
    EXPECT_EQ(prompts.texts(), QStringList{question});
    EXPECT_EQ(prompts.fileDialogs(), (QStringList{saveAs, open}));
    EXPECT_EQ(designer.window.document().path(), sample);
}

TEST(Open, StopsAtCancelAlone)
{
    const Designer designer;
    MakeChanged(designer);
    const PromptScript prompts({u"Cancel"_s});
    designer.Choose("mnuFileOpen");
    EXPECT_EQ(prompts.texts(), QStringList{question});
    EXPECT_TRUE(prompts.fileDialogs().isEmpty());
    EXPECT_EQ(designer.project().FormName, u"Survey"_s);
}

TEST(Open, RefusesAFileThatIsNoProject)
{
    const Designer designer(sample);
    QTemporaryDir folder;
    const QString path = folder.filePath(u"no.vmp"_s);
    ASSERT_TRUE(WriteBytes(path, "no project"));
    const PromptScript prompts({path, u"OK"_s});
    designer.Choose("mnuFileOpen");
    EXPECT_EQ(prompts.fileDialogs(), QStringList{open});
    ASSERT_EQ(prompts.boxes().size(), 1u);
    EXPECT_EQ(prompts.boxes()[0].text, u"This file is not a valid VMP file."_s);
    EXPECT_TRUE(prompts.boxes()[0].informative.startsWith(path + u":1: "_s));
    EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Critical);
    EXPECT_EQ(designer.window.document().path(), QString());
    EXPECT_EQ(designer.project().source.QuestionCount(), 0);
    EXPECT_EQ(designer.Text("txtAppName"), QString());
}

TEST(Exit, ClosesAtOnceWithoutChanges)
{
    const Designer designer(sample);
    const PromptScript prompts;
    designer.Choose("mnuFileExit");
    EXPECT_FALSE(designer.window.isVisible());
    EXPECT_TRUE(prompts.boxes().empty());
}

TEST(Exit, AsksOnceAndStaysWhenTheSaveDidNotHappen)
{
    const struct {
        const char *what;
        QStringList answers;
        bool closes;
    } rows[] = {
        {"no", {u"No"_s}, true},
        {"cancel", {u"Cancel"_s}, false},
        {"yes, but no file is chosen", {u"Yes"_s, u""_s}, false},
        {"yes, and a file", {u"Yes"_s, u"kept"_s}, true},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        const Designer designer;
        MakeChanged(designer);
        const PromptScript prompts(row.answers);
        designer.Choose("mnuFileExit");
        EXPECT_EQ(prompts.texts(), QStringList{question});
        EXPECT_EQ(prompts.fileDialogs(), QStringList(row.answers.size() - 1, saveAs));
        EXPECT_EQ(designer.window.isVisible(), !row.closes);
    }
}

TEST(TitleBar, AsksOnceAndStaysWhenTheSaveDidNotHappen)
{
    const struct {
        const char *what;
        QStringList answers;
        bool closes;
    } rows[] = {
        {"no", {u"No"_s}, true},
        {"cancel", {u"Cancel"_s}, false},
        {"yes, but no file is chosen", {u"Yes"_s, u""_s}, false},
        {"yes, and a file", {u"Yes"_s, u"kept"_s}, true},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        Designer designer;
        int helpClosed = 0;
        QObject::connect(&designer.window, &appInfoForm::HelpCloseAsked, [&] { ++helpClosed; });
        MakeChanged(designer);
        const PromptScript prompts(row.answers);
        EXPECT_EQ(designer.CloseByTitleBar(), row.closes);
        EXPECT_EQ(prompts.texts(), QStringList{question});
        EXPECT_EQ(prompts.fileDialogs(), QStringList(row.answers.size() - 1, saveAs));
        EXPECT_EQ(helpClosed, 1) << "help goes in every case";
    }
}

TEST(TitleBar, RemembersASaveThatFailedBefore)
{
    Designer designer;
    MakeChanged(designer);
    const PromptScript prompts({u""_s, u"Yes"_s, u"kept"_s});
    designer.Choose("mnuFileSave");
    EXPECT_FALSE(designer.CloseByTitleBar()) << "the failed save was not forgotten";
    EXPECT_FALSE(designer.ProjectChanged()) << "although this one succeeded";
    EXPECT_TRUE(designer.CloseByTitleBar());
    EXPECT_EQ(prompts.texts(), QStringList{question});
    EXPECT_EQ(prompts.fileDialogs(), QStringList(2, saveAs));
}

TEST(TitleBar, ForgetsASaveThatFailedFromTheToolbar)
{
    Designer designer;
    MakeChanged(designer);
    const PromptScript prompts({u""_s, u"Yes"_s, u"kept"_s});
    designer.Click("cmdToolbar_1");
    EXPECT_TRUE(designer.CloseByTitleBar());
    EXPECT_EQ(prompts.texts(), QStringList{question});
    EXPECT_EQ(prompts.fileDialogs(), QStringList(2, saveAs));
}

TEST(CloseByTheProgram, AsksNothing)
{
    Designer designer;
    MakeChanged(designer);
    const PromptScript prompts;
    EXPECT_TRUE(designer.window.close());
    EXPECT_TRUE(prompts.boxes().empty());
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
        {"mnuFileExit", Qt::CTRL | Qt::Key_Q}, {"mnuContents", Qt::Key_F1},
    };
    for (const auto &row : rows)
        EXPECT_TRUE(designer.Find<QAction>(row.action)->shortcuts().contains(row.key))
            << row.action;
}

} // namespace
