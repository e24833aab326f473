#include "palmgen/build_with_tools.h"

#include "support/files.h"
#include "support/ordinary_user.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// A build in two folders of its own, with tools that a test sets up.
class ToolBuild : public testing::Test
{
protected:
    ToolBuild()
    {
        QDir(m_folder.path()).mkdir(u"app"_s);
        QDir(m_folder.path()).mkdir(u"projects"_s);
        folders.work = m_folder.filePath(u"app"_s);
        folders.databases = m_folder.filePath(u"projects/"_s);
    }

    ToolRun Run(const ToolCall &call)
    {
        calls.append(call);
        if (missing.contains(call.name))
            return {.commandLine = call.commandLine, .reason = u"it is not there"_s};
        if (call.name == u"pilrc"_s) {
            compiled = BytesOf(call.arguments.last());
            WriteBytes(InApp(u"Survey.ro"_s), "resources");
        }
        databaseDuringRun = QFile::exists(InProjects(u"Survey.prc"_s));
        return {.commandLine = call.commandLine, .end = ToolEnd::Succeeded};
    }

    BuildReport Build(const QString &name, const Script &script = {"script"})
    {
        return BuildWithTools([this](const ToolCall &call) { return Run(call); })(script, name,
                                                                                  folders);
    }

    QString InApp(const QString &name) const { return folders.work + u'/' + name; }
    QString InProjects(const QString &name) const { return folders.databases + name; }

    QTemporaryDir m_folder;
    BuildFolders folders;
    QList<ToolCall> calls;
    QStringList missing;
    QByteArray compiled;
    bool databaseDuringRun = false;
};

} // namespace

TEST_F(ToolBuild, RunsBothToolsWithTheirArguments)
{
    const BuildReport report = Build(u"Survey"_s);
    EXPECT_TRUE(report.outcome);
    ASSERT_EQ(calls.size(), 2);
    EXPECT_EQ(compiled, "script");
    EXPECT_EQ(calls[0].name, u"pilrc"_s);
    EXPECT_EQ(calls[0].arguments,
              (QStringList{u"-ro"_s, u"-I"_s, folders.work, InApp(u"Survey.rcp"_s)}));
    EXPECT_EQ(calls[1].name, u"build-prc"_s);
    EXPECT_EQ(calls[1].arguments,
              (QStringList{u"-t"_s, u"kelp"_s, u"--hidden"_s, u"--no-check-resources"_s,
                           folders.databases + u"/Survey.prc"_s, u"Survey"_s, u"Wmpt"_s,
                           u"Survey.ro"_s}));
    for (const ToolCall &call : calls)
        EXPECT_EQ(call.workingFolder, folders.work);
    EXPECT_EQ(report.runs.size(), 2);
}

TEST_F(ToolBuild, TheCommandLineAsTextQuotesThePathsAlone)
{
    Build(u"Survey"_s);
    ASSERT_EQ(calls.size(), 2);
    EXPECT_EQ(calls[0].commandLine, u"pilrc -ro -I \"%1\" \"%1/Survey.rcp\""_s.arg(folders.work));
    EXPECT_EQ(calls[1].commandLine,
              u"build-prc -t kelp --hidden --no-check-resources \"%1/Survey.prc\" "
              "Survey Wmpt Survey.ro"_s.arg(folders.databases));
}

TEST_F(ToolBuild, AnEarlierDatabaseIsGoneBeforeTheToolsRun)
{
    WriteBytes(InProjects(u"Survey.prc"_s), "stale");
    WriteBytes(InProjects(u"Other.prc"_s), "another form's");
    WriteBytes(InApp(u"Survey.ro"_s), "stale");
    missing = QStringList{u"pilrc"_s, u"build-prc"_s};
    Build(u"Survey"_s);
    EXPECT_FALSE(databaseDuringRun);
    EXPECT_EQ(NamesIn(folders.databases), QStringList{u"Other.prc"_s});
}

TEST_F(ToolBuild, NothingOfItsOwnStaysInTheApplicationFolder)
{
    WriteBytes(InApp(u"program"_s), "kept");
    Build(u"Survey"_s);
    EXPECT_EQ(NamesIn(folders.work), QStringList{u"program"_s});
}

TEST_F(ToolBuild, ReportsAToolThatDoesNotStartAndGoesOn)
{
    missing = QStringList{u"pilrc"_s};
    const BuildReport report = Build(u"Survey"_s);
    ASSERT_EQ(report.runs.size(), 2);
    EXPECT_EQ(report.runs[0].end, ToolEnd::NotStarted);
    EXPECT_EQ(report.runs[0].reason, u"it is not there"_s);
    EXPECT_EQ(calls.size(), 2) << "the second tool is tried";
    EXPECT_TRUE(report.outcome);
    EXPECT_FALSE(QFile::exists(InApp(u"Survey.rcp"_s))) << "the clean-up runs";
}

TEST_F(ToolBuild, AScriptThatFailedStaysAsFarAsItWasWritten)
{
    const BuildReport report = Build(u"Survey"_s, {"half", Error{u"why"_s}});
    EXPECT_TRUE(report.outcome) << "the script's own error is nothing new";
    EXPECT_TRUE(calls.isEmpty());
    EXPECT_EQ(BytesOf(InApp(u"Survey.rcp"_s)), "half");
}

TEST_F(ToolBuild, AFileThatCannotBeDeletedEndsTheBuild)
{
    WriteBytes(InProjects(u"Survey.prc"_s), "held");
    QFile::setPermissions(folders.databases,
                          QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755));
    BuildReport report;
    {
        const AsOrdinaryUser ordinary;
        report = Build(u"Survey"_s);
    }
    QFile::setPermissions(folders.databases, QFile::Permissions(0x7755));
    ASSERT_FALSE(report.outcome);
    EXPECT_TRUE(report.outcome.error().permissionDenied);
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(ToolBuild, AnOddNameIsOnlyAName)
{
    for (const QString &name : {u"a;touch x"_s, u"$(id)"_s, u"-x"_s, u"a b"_s, u"%1"_s}) {
        SCOPED_TRACE(name.toStdString());
        calls.clear();
        Build(name);
        ASSERT_EQ(calls.size(), 2);
        EXPECT_EQ(calls[0].arguments.last(), InApp(name + u".rcp"_s));
        EXPECT_EQ(calls[1].arguments.mid(4),
                  (QStringList{folders.databases + u'/' + name + u".prc"_s, name, u"Wmpt"_s,
                               name + u".ro"_s}));
        EXPECT_TRUE(calls[1].commandLine.endsWith(name + u" Wmpt "_s + name + u".ro"_s));
    }
}
