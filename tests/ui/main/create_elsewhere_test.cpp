#include "ui/main/create_database.h"

#include "model/project_file.h"
#include "platform/tool_runner.h"
#include "support/files.h"
#include "support/ordinary_user.h"
#include "support/print.h"
#include "ui/support/designer.h"
#include "ui/support/prompt_script.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// The folders of a program that is installed for all users, and of a user.
class AnInstalledDesigner : public testing::Test
{
protected:
    AnInstalledDesigner()
    {
        for (const QString &name : {u"app"_s, u"docs"_s, u"share"_s})
            QDir(m_folder.path()).mkdir(name);
        QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755));
        QFile::setPermissions(m_folder.filePath(u"docs"_s), QFile::Permissions(0x7777));
        QFile::setPermissions(m_folder.filePath(u"share"_s), QFile::Permissions(0x7777));
        QFile::setPermissions(m_folder.filePath(u"app"_s), QFile::Permissions(0x5555));
        m_environment.applicationFolder = m_folder.filePath(u"app"_s);
        m_environment.projectsFolder = m_folder.filePath(u"docs/"_s);
        m_environment.dataFolder = m_folder.filePath(u"share/vellumo-designer"_s);
        m_environment.makeIdentifier = [] { return QString(); };
        m_environment.runTool = [this](const ToolCall &call) {
            m_workingFolders += call.workingFolder;
            return RunAndWait(call,
                              {.folders = {QStringLiteral(TOOL_FOLDER)}, .timeoutSeconds = 60});
        };
        m_environment.open = [](const QString &) {};
    }

    QTemporaryDir m_folder;
    Environment m_environment;
    QStringList m_workingFolders;
};

TEST_F(AnInstalledDesigner, WritesTheScriptIntoTheUsersDataFolder)
{
    const auto project = LoadProject(sample);
    ASSERT_TRUE(project);
    const PromptScript prompts({u"OK"_s});
    {
        const AsOrdinaryUser ordinary;
        CreateDatabase(*project, m_environment, nullptr);
    }
    ASSERT_EQ(prompts.boxes().size(), 1u) << prompts.boxes().back().informative.toStdString();
    EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Information);
    EXPECT_EQ(NamesIn(m_environment.projectsFolder), QStringList{u"SiteVisit.prc"_s});
    EXPECT_EQ(m_workingFolders, (QStringList{m_environment.dataFolder, m_environment.dataFolder}));
    EXPECT_TRUE(NamesIn(m_environment.dataFolder).isEmpty());
    EXPECT_TRUE(NamesIn(m_environment.applicationFolder).isEmpty());
}

} // namespace
