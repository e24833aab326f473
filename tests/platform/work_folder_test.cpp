#include "platform/work_folder.h"

#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

class AWorkFolder : public testing::Test
{
protected:
    AWorkFolder() { qputenv("TMPDIR", QFile::encodeName(m_temporary.path())); }
    ~AWorkFolder() override { qputenv("TMPDIR", m_before); }

    const QByteArray m_before = qgetenv("TMPDIR");
    QTemporaryDir m_temporary;
};

TEST_F(AWorkFolder, GoesWithEverythingInIt)
{
    {
        const WorkFolder work;
        ASSERT_TRUE(work.state());
        ASSERT_TRUE(QDir(work.path()).mkpath(u"deep/er"_s));
        ASSERT_TRUE(WriteBytes(work.path() + u"/deep/file"_s, "x"));
        EXPECT_EQ(NamesIn(m_temporary.path()).size(), 1);
    }
    EXPECT_EQ(NamesIn(m_temporary.path()), QStringList());
}

TEST_F(AWorkFolder, GoesWhereASignalUndoesEverything)
{
    const WorkFolder work;
    ASSERT_TRUE(WriteBytes(work.path() + u"/file"_s, "x"));
    UndoAll([] {});
    ForgetUndoing();
    EXPECT_EQ(NamesIn(m_temporary.path()), QStringList());
}

TEST_F(AWorkFolder, OthersRemoveItOnlyWhenItsProgramIsGone)
{
    const pid_t killed = fork();
    if (killed == 0) {
        const WorkFolder work;
        _exit(WriteBytes(work.path() + u"/script.rcp"_s, "x") ? 0 : 1);
    }
    int status = 1;
    ASSERT_EQ(waitpid(killed, &status, 0), killed);
    ASSERT_EQ(status, 0);
    const WorkFolder living;
    ASSERT_EQ(NamesIn(m_temporary.path()).size(), 2);
    WorkFolder::RemoveLeft();
    EXPECT_EQ(m_temporary.path() + u'/' + NamesIn(m_temporary.path()).join(u", "), living.path());
}

TEST_F(AWorkFolder, IsNotTheUsersOwnOfSuchAName)
{
    const QString own = m_temporary.path() + u"/vellumo-work-season"_s;
    ASSERT_EQ(mkdir(QFile::encodeName(own), 0700), 0);
    ASSERT_TRUE(WriteBytes(own + u"/survey.vmp"_s, "a season's work"));
    WorkFolder::RemoveLeft();
    EXPECT_EQ(BytesOf(own + u"/survey.vmp"_s), "a season's work");
}

TEST_F(AWorkFolder, SaysWhereNoneCanBeMade)
{
    qputenv("TMPDIR", "/nowhere");
    const WorkFolder work;
    ASSERT_FALSE(work.state());
    EXPECT_EQ(work.state().error().text, u"There is no such folder for temporary files"_s);
    EXPECT_EQ(work.state().error().file, u"/nowhere"_s);
    WorkFolder::RemoveLeft();
}

#ifdef Q_OS_LINUX
TEST_F(AWorkFolder, SaysWhyTheSystemMakesNone)
{
    qputenv("TMPDIR", "/proc"); // where not even root makes folders
    const WorkFolder work;
    ASSERT_FALSE(work.state());
    EXPECT_EQ(work.state().error().text, u"No such file or directory"_s);
    EXPECT_EQ(work.state().error().file, u"/proc"_s);
}
#endif

TEST_F(AWorkFolder, IsTheSystemsWhereTheVariableIsEmpty)
{
    qputenv("TMPDIR", "");
    const WorkFolder work;
    ASSERT_TRUE(work.state());
    EXPECT_TRUE(work.path().startsWith(u"/tmp/vellumo-work-")) << work.path().toStdString();
}

} // namespace
