#include "platform/folders.h"

#include "support/files.h"
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

TEST(Folders, ADataFolderHasADriveLetter)
{
    EXPECT_EQ(DataFolderOf(u"/home/a/x"_s), u"Z:\\home\\a\\x"_s);
    EXPECT_EQ(DataFolderOf(u"/"_s), u"Z:\\"_s);
    EXPECT_EQ(DataFolderOf(u"C:/Data"_s), u"C:\\Data"_s);
}
