#include "platform/tool_runner.h"
#include "support/ordinary_user.h"
#include "support/print.h"
#include "ui/support/designer.h"
#include "ui/support/prompt_script.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

void ReviewAndCreate(const Designer &designer)
{
    designer.ClickTab(4);
    designer.Click("cmdReviewForm");
    designer.Click("cmdCreateForm");
}

/// The real tools, which the build puts into a folder of its own.
ToolRun RunRealTool(const ToolCall &call)
{
    return RunAndWait(call, {.folders = {QStringLiteral(TOOL_FOLDER)}, .timeoutSeconds = 60});
}

TEST(Create, MakesTheDatabaseTellsWhereItIsAndOpensIt)
{
    Designer designer(sample);
    designer.runTool = RunRealTool;
    const PromptScript prompts({u"OK"_s, u"OK"_s});
    ReviewAndCreate(designer);

    const QString folder = designer.projects + u'/';
    ASSERT_EQ(prompts.boxes().size(), 2u);
    const SeenBox &told = prompts.boxes()[1];
    EXPECT_EQ(told.title, u"Vellumo Designer"_s);
    EXPECT_EQ(told.icon, QMessageBox::Information);
    EXPECT_EQ(told.text,
              folder + designer.project().FormName +
                  u".Prc has been created. You may now install it onto your Palm "
                  "handheld (using the Palm Install Tool) to use with Vellumo Viewer."_s);
    const QString database = folder + designer.project().FormName + u".prc"_s;
    EXPECT_EQ(BytesOf(database).mid(60, 8), "kelpWmpt");
    EXPECT_EQ(designer.opened, (QStringList{database, folder}));
    EXPECT_TRUE(NamesIn(designer.application).isEmpty());
}

TEST(Create, TellsOfSuccessWhateverTheToolsSaidAndThenThatThereIsNoDatabase)
{
    Designer designer(sample);
    designer.runTool = [](const ToolCall &) {
        return ToolRun{.commandLine = u"tool"_s, .end = ToolEnd::Failed, .reason = u"crashed"_s};
    };
    const PromptScript prompts({u"OK"_s, u"OK"_s, u"OK"_s});
    ReviewAndCreate(designer);
    ASSERT_EQ(prompts.boxes().size(), 3u);
    EXPECT_EQ(prompts.boxes()[1].icon, QMessageBox::Information);
    EXPECT_TRUE(prompts.boxes()[1].text.contains(u".Prc has been created."_s));
    EXPECT_EQ(prompts.boxes()[1].informative, QString());
    EXPECT_EQ(designer.opened.size(), 2);

    const SeenBox &fault = prompts.boxes()[2];
    EXPECT_EQ(fault.icon, QMessageBox::Critical);
    EXPECT_EQ(fault.title, u"Vellumo Designer"_s);
    EXPECT_EQ(fault.text,
              u"There is no database that you could install, whatever was told before."_s);
    EXPECT_EQ(fault.informative,
              designer.projects +
                  u"/SiteVisit.prc: No such file or directory\n"
                  "failed (crashed): tool\nfailed (crashed): tool\n\n"
                  "Mend what these lines name, then review and create the Vellsheet again."_s);
}

TEST(Create, TellsOfAToolThatDoesNotStartAndGoesOn)
{
    Designer designer(sample);
    designer.runTool = [](const ToolCall &call) {
        return ToolRun{.commandLine = call.commandLine, .reason = u"No such file"_s};
    };
    const PromptScript prompts({u"OK"_s, u"OK"_s, u"OK"_s, u"OK"_s, u"OK"_s});
    ReviewAndCreate(designer);
    ASSERT_EQ(prompts.boxes().size(), 5u);
    for (const int tool : {1, 2}) {
        const SeenBox &box = prompts.boxes()[static_cast<size_t>(tool)];
        EXPECT_EQ(box.title, u"Error"_s);
        EXPECT_EQ(box.icon, QMessageBox::Warning);
        EXPECT_EQ(box.buttons, QStringList{u"OK"_s});
        EXPECT_TRUE(box.text.startsWith(tool == 1 ? u"Error starting task pilrc"_s
                                                  : u"Error starting task build-prc"_s));
    }
    EXPECT_EQ(prompts.boxes()[3].icon, QMessageBox::Information);
    EXPECT_TRUE(
        prompts.boxes()[4].informative.contains(u"\nInstall Vellumo Designer again, or put "_s));
}

/// Runs the real tools, and then changes what they left.
auto ToolsThatLeave(const Designer &designer, std::function<void(QByteArray &database)> change)
{
    return [&designer, change = std::move(change)](const ToolCall &call) {
        ToolRun run = RunRealTool(call);
        const QString path = designer.projects + u"/SiteVisit.prc"_s;
        if (QByteArray bytes = QFile::exists(path) ? BytesOf(path) : QByteArray();
            !bytes.isEmpty()) {
            change(bytes);
            EXPECT_TRUE(WriteBytes(path, bytes));
        }
        return run;
    };
}

TEST(Create, TellsInWhatTheDatabaseDiffers)
{
    Designer designer(sample);
    designer.runTool = ToolsThatLeave(designer, [](QByteArray &database) {
        database.replace("Overhead lines", "Overhead LINES");
    });
    const PromptScript prompts({u"OK"_s, u"OK"_s, u"OK"_s});
    ReviewAndCreate(designer);
    ASSERT_EQ(prompts.boxes().size(), 3u);
    const SeenBox &fault = prompts.boxes()[2];
    EXPECT_EQ(fault.icon, QMessageBox::Critical);
    EXPECT_EQ(fault.text, u"The database is not what your Vellsheet asks for. "
                          "Do not install it onto your Palm handheld."_s);
    EXPECT_TRUE(fault.informative.contains(u"Overhead LINES"_s)) << fault.informative.toStdString();
}

TEST(Create, TellsOfADatabaseThatCannotBeRead)
{
    Designer designer(sample);
    designer.runTool =
        ToolsThatLeave(designer, [](QByteArray &database) { database.truncate(50); });
    const PromptScript prompts({u"OK"_s, u"OK"_s, u"OK"_s});
    ReviewAndCreate(designer);
    ASSERT_EQ(prompts.boxes().size(), 3u);
    EXPECT_TRUE(
        prompts.boxes()[2].informative.startsWith(designer.projects + u"/SiteVisit.prc: "_s));
}

TEST(Create, FailsWithOneBoxWhereTheScriptCannotBeWritten)
{
    Designer designer(sample);
    designer.Find<QLineEdit>("txtAppVersion")->setText(u"\u0416"_s);
    const PromptScript prompts({u"OK"_s, u"OK"_s});
    ReviewAndCreate(designer);
    ASSERT_EQ(prompts.boxes().size(), 2u);
    EXPECT_EQ(prompts.boxes()[1].icon, QMessageBox::Critical);
    EXPECT_EQ(prompts.boxes()[1].title, u"Vellumo Designer"_s);
    EXPECT_EQ(prompts.boxes()[1].text, u"Error in Vellsheet Creation!"_s);
    EXPECT_TRUE(prompts.boxes()[1].informative.contains(u"'\u0416' (U+0416)"_s))
        << "names the character";
    EXPECT_TRUE(designer.opened.isEmpty());
}

TEST(Create, NamesAListWithoutItems)
{
    Designer designer(DataFile(u"projects/edge-noitems.vmp"_s));
    const PromptScript prompts({u"OK"_s, u"OK"_s});
    ReviewAndCreate(designer);
    ASSERT_EQ(prompts.boxes().size(), 2u);
    EXPECT_EQ(prompts.boxes()[1].text, u"Error in Vellsheet Creation!"_s);
    EXPECT_EQ(prompts.boxes()[1].informative, u"Question 3 is a list without items"_s);
}

TEST(Create, NamesTheFileThatCannotBeWritten)
{
    Designer designer(sample);
    const PromptScript prompts({u"OK"_s, u"OK"_s});
    QFile::setPermissions(designer.folder.path(), QFile::Permissions(0x7755));
    QFile::setPermissions(designer.application, QFile::Permissions(0x5555));
    {
        const AsOrdinaryUser ordinary;
        ReviewAndCreate(designer);
    }
    ASSERT_EQ(prompts.boxes().size(), 2u);
    EXPECT_EQ(prompts.boxes()[1].text, u"Permission denied\r\nError in Vellsheet Creation!"_s);
    EXPECT_EQ(prompts.boxes()[1].informative,
              designer.application + u"/SiteVisit.rcp: Permission denied"_s);
}

TEST(Create, IsNotToBePressedBeforeAReview)
{
    const Designer designer(sample);
    designer.ClickTab(4);
    const PromptScript prompts;
    designer.Click("cmdCreateForm");
    EXPECT_TRUE(prompts.boxes().empty());
}

} // namespace
