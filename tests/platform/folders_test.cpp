#include "platform/folders.h"

#include "support/files.h"
#include "support/ordinary_user.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(Folders, TheProjectsFolderIsMadeWithWhatIsAboveIt)
{
    const QTemporaryDir home;
    qputenv("HOME", QFile::encodeName(home.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.filePath(u".config"_s)));

    EXPECT_EQ(ProjectsFolder(), home.path() + u"/Documents/My Vellumo/"_s);
    EXPECT_TRUE(MakeProjectsFolder());
    EXPECT_TRUE(QDir(ProjectsFolder()).exists());
    ASSERT_TRUE(WriteBytes(ProjectsFolder() + u"a.prc"_s, "kept"));
    EXPECT_TRUE(MakeProjectsFolder()) << "one that exists is left alone";
    EXPECT_EQ(NamesIn(ProjectsFolder()), QStringList{u"a.prc"_s});
}

TEST(Folders, SaysWhenTheProjectsFolderCannotBeMade)
{
    const QTemporaryDir home;
    qputenv("HOME", QFile::encodeName(home.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.filePath(u".config"_s)));
    ASSERT_TRUE(WriteBytes(home.filePath(u"Documents"_s), "a file in the way"));
    EXPECT_FALSE(MakeProjectsFolder());
}

TEST(Folders, TheStateFolderIsWhereThePlatformHasIt)
{
    qputenv("HOME", "/home/a");
    qunsetenv("XDG_STATE_HOME");
    EXPECT_EQ(StateFolder(), u"/home/a/.local/state/vellumo-designer"_s);
    qputenv("XDG_STATE_HOME", "relative");
    EXPECT_EQ(StateFolder(), u"/home/a/.local/state/vellumo-designer"_s) << "as if none were named";
    qputenv("XDG_STATE_HOME", "/var/state");
    EXPECT_EQ(StateFolder(), u"/var/state/vellumo-designer"_s);
}

TEST(Folders, TheDataFolderIsWhereThePlatformHasIt)
{
    qputenv("HOME", "/home/a");
    qunsetenv("XDG_DATA_HOME");
    EXPECT_EQ(DataFolder(), u"/home/a/.local/share/vellumo-designer"_s);
    qputenv("XDG_DATA_HOME", "relative");
    EXPECT_EQ(DataFolder(), u"/home/a/.local/share/vellumo-designer"_s);
    qputenv("XDG_DATA_HOME", "/srv/data");
    EXPECT_EQ(DataFolder(), u"/srv/data/vellumo-designer"_s);
}

/// An application folder, and beside it a folder for everybody, in which another may stand in.
class TheWrittenFolder : public testing::Test
{
protected:
    TheWrittenFolder()
    {
        QDir(m_folder.path()).mkpath(u"app"_s);
        QDir(m_folder.path()).mkpath(u"share"_s);
        QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755));
        QFile::setPermissions(m_folder.filePath(u"share"_s), QFile::Permissions(0x7777));
    }

    void AllowInApplication(int permissions) const
    {
        QFile::setPermissions(m_application, QFile::Permissions(permissions));
    }

    QTemporaryDir m_folder;
    QString m_application = m_folder.filePath(u"app"_s);
    QString m_standIn = m_folder.filePath(u"share/a/vellumo-designer"_s);
};

TEST_F(TheWrittenFolder, IsTheApplicationFolderWhereThatCanBeWritten)
{
    AllowInApplication(0x7777);
    const AsOrdinaryUser ordinary;
    EXPECT_EQ(WrittenFolder(m_application, m_standIn), m_application);
    EXPECT_FALSE(QFile::exists(m_standIn));
    EXPECT_TRUE(NamesIn(m_application).isEmpty()) << "leaves no trace";
}

TEST_F(TheWrittenFolder, IsAFolderOfTheUsersOwnWhereThatCannotBeWritten)
{
    AllowInApplication(0x5555);
    const AsOrdinaryUser ordinary;
    EXPECT_EQ(WrittenFolder(m_application, m_standIn), m_standIn);
    EXPECT_EQ(QFile::permissions(m_standIn) & QFile::Permissions(0x7077),
              QFile::Permissions(0x7000));
    ASSERT_TRUE(WriteBytes(m_standIn + u"/settings.ini"_s, "kept"));
    EXPECT_EQ(WrittenFolder(m_application, m_standIn), m_standIn);
    EXPECT_EQ(NamesIn(m_standIn), QStringList{u"settings.ini"_s});
}

TEST_F(TheWrittenFolder, IsNamedEvenWhereItCannotBeMade)
{
    AllowInApplication(0x5555);
    ASSERT_TRUE(WriteBytes(m_folder.filePath(u"share/a"_s), "a file in the way"));
    const AsOrdinaryUser ordinary;
    EXPECT_EQ(WrittenFolder(m_application, m_standIn), m_standIn);
}

TEST_F(TheWrittenFolder, IsTheApplicationFolderWhereNothingStandsIn)
{
    AllowInApplication(0x5555);
    const AsOrdinaryUser ordinary;
    EXPECT_EQ(WrittenFolder(m_application, {}), m_application);
}

TEST(Folders, ADataFolderHasADriveLetter)
{
    EXPECT_EQ(DataFolderOf(u"/home/a/x"_s), u"Z:\\home\\a\\x"_s);
    EXPECT_EQ(DataFolderOf(u"/"_s), u"Z:\\"_s);
    EXPECT_EQ(DataFolderOf(u"C:/Data"_s), u"C:\\Data"_s);
}
