#include "platform/tool_runner.h"

#include "platform/undoable.h"

#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <thread>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

class ToolRunner : public testing::Test
{
protected:
    ToolRun Run(const QStringList &arguments, int timeoutSeconds = 0) const
    {
        return RunAndWait(
            {.name = u"fake_tool"_s,
             .arguments = arguments,
             .workingFolder = m_folder.path(),
             .commandLine = u"the command line"_s},
            {.folders = {QStringLiteral(FAKE_TOOL_FOLDER)}, .timeoutSeconds = timeoutSeconds});
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ToolRunner, WaitsForTheToolAndRunsItInItsFolder)
{
    const ToolRun run =
        Run({u"print"_s, u"work\r\ning"_s, u"write"_s, u"made.txt"_s, u"content"_s});
    EXPECT_EQ(run.end, ToolEnd::Succeeded);
    EXPECT_EQ(run.messages, u"work\ning\n"_s) << "there was nothing on standard error";
    EXPECT_EQ(run.reason, u""_s);
    EXPECT_EQ(run.commandLine, u"the command line"_s);
    EXPECT_EQ(BytesOf(m_folder.filePath(u"made.txt"_s)), "content");
}

TEST_F(ToolRunner, KeepsTheToolsOwnWordsAndStatus)
{
    const ToolRun failed = Run({u"complain"_s, u"no good"_s, u"fail"_s, u"3"_s});
    EXPECT_EQ(failed.end, ToolEnd::Failed);
    EXPECT_EQ(failed.messages, u"no good\n"_s);
    EXPECT_EQ(failed.reason, u"exit status 3"_s);

    EXPECT_EQ(Run({u"accent"_s}).messages, u"caf\u00E9\n"_s);

    const ToolRun crashed = Run({u"crash"_s});
    EXPECT_EQ(crashed.end, ToolEnd::Failed);
    EXPECT_EQ(crashed.reason, u"crashed"_s);
}

TEST_F(ToolRunner, NoArgumentEverPassesThroughAShell)
{
    const QStringList odd = {u"a;touch x"_s, u"$(id)"_s,  u"`id`"_s, u"a b"_s, u"\"quoted\""_s,
                             u"'single'"_s,  u"> file"_s, u"*"_s,    u""_s,    u"caf\u00E9"_s};
    EXPECT_EQ(Run(odd).end, ToolEnd::Succeeded);
    EXPECT_EQ(BytesOf(m_folder.filePath(u"arguments.txt"_s)), odd.join(u'\n').toUtf8() + "\n");
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList{u"arguments.txt"_s});
}

TEST_F(ToolRunner, SaysWhyAToolDidNotStart)
{
    const ToolRun missing = RunAndWait({.name = u"no-such-tool-anywhere"_s,
                                        .arguments = {},
                                        .workingFolder = m_folder.path(),
                                        .commandLine = u"no-such-tool-anywhere"_s},
                                       {.folders = {m_folder.path()}});
    EXPECT_EQ(missing.end, ToolEnd::NotStarted);
    EXPECT_TRUE(missing.reason.contains(u"No such file or directory"))
        << missing.reason.toStdString();
}

TEST_F(ToolRunner, LooksInTheFoldersBeforePath)
{
    const QString ours = m_folder.filePath(u"true"_s);
    ASSERT_TRUE(QFile::copy(QStringLiteral(FAKE_TOOL_FOLDER "/fake_tool"), ours));
    const ToolCall call = {.name = u"true"_s,
                           .arguments = {u"fail"_s, u"1"_s},
                           .workingFolder = m_folder.path(),
                           .commandLine = u"true"_s};
    EXPECT_EQ(RunAndWait(call, {.folders = {m_folder.path()}}).end, ToolEnd::Failed);
    EXPECT_EQ(RunAndWait(call, {.folders = {u"/nowhere"_s}}).end, ToolEnd::Succeeded)
        << "that of PATH";
    EXPECT_EQ(RunAndWait(call, {}).end, ToolEnd::Succeeded);
}

TEST_F(ToolRunner, EndsAToolWhoseTimeIsOver)
{
    const ToolRun run = Run({u"complain"_s, u"starting"_s, u"hang"_s}, 1);
    EXPECT_EQ(run.end, ToolEnd::TimedOut);
    EXPECT_EQ(run.messages, u"starting\n"_s) << "what it said until then is kept";

    const ToolRun quick = Run({u"print"_s, u"done"_s}, 60);
    EXPECT_EQ(quick.end, ToolEnd::Succeeded);
}

TEST_F(ToolRunner, ASignalEndsTheTool)
{
    std::thread signal([this] {
        while (!QFile::exists(m_folder.filePath(u"arguments.txt"_s)))
            std::this_thread::yield();
        UndoAll([] {});
    });
    const ToolRun run = Run({u"hang"_s});
    signal.join();
    ForgetUndoing();
    EXPECT_EQ(run.end, ToolEnd::Failed);
    EXPECT_EQ(run.reason, u"crashed"_s);
}

TEST_F(ToolRunner, KeepsTheFirstOfEndlessMessages)
{
    const ToolRun run = Run({u"complain"_s, u"first"_s, u"flood"_s, u"fail"_s, u"1"_s});
    EXPECT_EQ(run.end, ToolEnd::Failed);
    EXPECT_TRUE(run.messages.startsWith(u"first\n"));
    EXPECT_EQ(run.messages.size(), 64 * 1024);
}
