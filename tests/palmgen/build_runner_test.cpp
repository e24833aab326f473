#include "palmgen/build_runner.h"

#include "support/files.h"
#include "support/ordinary_user.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// A build in two folders of its own, with tools that a test sets up.
class BuildRunner : public testing::Test
{
protected:
    BuildRunner()
    {
        QDir(m_folder.path()).mkdir(u"app"_s);
        QDir(m_folder.path()).mkdir(u"projects"_s);
        place.applicationFolder = m_folder.filePath(u"app"_s);
        place.projectsFolder = m_folder.filePath(u"projects/"_s);
        place.runTool = [this](const ToolCall &call) {
            calls.append(call);
            ToolRun run;
            run.commandLine = call.commandLine;
            run.started = !missing.contains(call.name);
            run.whyNotStarted = run.started ? u""_s : u"it is not there"_s;
            run.succeeded = run.started;
            if (run.started && call.name == u"pilrc"_s)
                WriteBytes(InApp(u"Survey.ro"_s), "resources");
            databaseDuringRun = QFile::exists(InProjects(u"Survey.prc"_s));
            return run;
        };
        place.reportNotStarted = [this](const QString &message) { reports.append(message); };
        WriteBytes(InApp(u"Survey.rcp"_s), "script");
    }

    QString InApp(const QString &name) const { return place.applicationFolder + u'/' + name; }
    QString InProjects(const QString &name) const { return place.projectsFolder + name; }

    QTemporaryDir m_folder;
    BuildPlace place;
    QList<ToolCall> calls;
    QStringList reports, missing;
    bool databaseDuringRun = false;
};

} // namespace

TEST_F(BuildRunner, RunsBothToolsWithTheirArguments)
{
    const BuildReport report = Build(u"Survey"_s, place);
    EXPECT_FALSE(report.fault);
    ASSERT_EQ(calls.size(), 2);
    EXPECT_EQ(calls[0].name, u"pilrc"_s);
    EXPECT_EQ(calls[0].arguments,
              (QStringList{u"-ro"_s, u"-I"_s, place.applicationFolder, InApp(u"Survey.rcp"_s)}));
    EXPECT_EQ(calls[1].name, u"build-prc"_s);
    EXPECT_EQ(calls[1].arguments,
              (QStringList{u"-t"_s, u"kelp"_s, u"--hidden"_s, u"--no-check-resources"_s,
                           place.projectsFolder + u"/Survey.prc"_s, u"Survey"_s, u"Wmpt"_s,
                           u"Survey.ro"_s}));
    for (const ToolCall &call : calls)
        EXPECT_EQ(call.workingFolder, place.applicationFolder);
    EXPECT_EQ(report.runs.size(), 2);
}

TEST_F(BuildRunner, TheCommandLineAsTextQuotesThePathsAlone)
{
    Build(u"Survey"_s, place);
    ASSERT_EQ(calls.size(), 2);
    EXPECT_EQ(calls[0].commandLine,
              u"pilrc -ro -I \"%1\" \"%1/Survey.rcp\""_s.arg(place.applicationFolder));
    EXPECT_EQ(calls[1].commandLine,
              u"build-prc -t kelp --hidden --no-check-resources \"%1/Survey.prc\" "
              "Survey Wmpt Survey.ro"_s.arg(place.projectsFolder));
}

TEST_F(BuildRunner, AnEarlierDatabaseIsGoneBeforeTheToolsRun)
{
    WriteBytes(InProjects(u"Survey.prc"_s), "stale");
    WriteBytes(InProjects(u"Other.prc"_s), "another form's");
    WriteBytes(InApp(u"Survey.ro"_s), "stale");
    missing = QStringList{u"pilrc"_s, u"build-prc"_s};
    Build(u"Survey"_s, place);
    EXPECT_FALSE(databaseDuringRun);
    EXPECT_EQ(NamesIn(place.projectsFolder), QStringList{u"Other.prc"_s});
}

TEST_F(BuildRunner, NothingOfItsOwnStaysInTheApplicationFolder)
{
    WriteBytes(InApp(u"program"_s), "kept");
    Build(u"Survey"_s, place);
    EXPECT_EQ(NamesIn(place.applicationFolder), QStringList{u"program"_s});
}

TEST_F(BuildRunner, ReportsAToolThatDoesNotStartAndGoesOn)
{
    missing = QStringList{u"pilrc"_s};
    const BuildReport report = Build(u"Survey"_s, place);
    ASSERT_EQ(reports.size(), 1);
    EXPECT_EQ(reports[0], u"Error starting task pilrc -ro -I \"%1\" \"%1/Survey.rcp\"\r\n"
                          "it is not there"_s.arg(place.applicationFolder));
    EXPECT_EQ(calls.size(), 2) << "the second tool is tried";
    EXPECT_FALSE(report.fault);
    EXPECT_FALSE(QFile::exists(InApp(u"Survey.rcp"_s))) << "the clean-up runs";
}

TEST_F(BuildRunner, AFileThatCannotBeDeletedEndsTheBuild)
{
    WriteBytes(InProjects(u"Survey.prc"_s), "held");
    QFile::setPermissions(place.projectsFolder,
                          QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755));
    BuildReport report;
    {
        const AsOrdinaryUser ordinary;
        report = Build(u"Survey"_s, place);
    }
    QFile::setPermissions(place.projectsFolder, QFile::Permissions(0x7755));
    ASSERT_TRUE(report.fault);
    EXPECT_TRUE(report.fault->permissionDenied);
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(BuildRunner, AnOddNameIsOnlyAName)
{
    for (const QString &name : {u"a;touch x"_s, u"$(id)"_s, u"-x"_s, u"a b"_s, u"%1"_s}) {
        SCOPED_TRACE(name.toStdString());
        calls.clear();
        Build(name, place);
        ASSERT_EQ(calls.size(), 2);
        EXPECT_EQ(calls[0].arguments.last(), InApp(name + u".rcp"_s));
        EXPECT_EQ(calls[1].arguments.mid(4),
                  (QStringList{place.projectsFolder + u'/' + name + u".prc"_s, name, u"Wmpt"_s,
                               name + u".ro"_s}));
        EXPECT_TRUE(calls[1].commandLine.endsWith(name + u" Wmpt "_s + name + u".ro"_s));
    }
}
