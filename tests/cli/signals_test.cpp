#include "cli/projects.h"
#include "support/files.h"
#include "support/print.h"

#include <QProcess>
#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// The program itself, in a folder with tools of the test's own.
class Signals : public testing::Test
{
protected:
    Signals()
    {
        for (const char *name : {"bin", "tmp", "out"})
            QDir(m_folder.path()).mkdir(QLatin1StringView(name));
        QFile::copy(QStringLiteral(PROGRAMS "/vellumo"), InFolder(u"bin/vellumo"_s));
        mkfifo(QFile::encodeName(InFolder(u"alive"_s)), 0600);
        qputenv("TMPDIR", QFile::encodeName(InFolder(u"tmp"_s)));
    }
    ~Signals() override { qputenv("TMPDIR", m_before); }

    QString InFolder(const QString &name) const { return m_folder.filePath(name); }
    QStringList LeftBehind() const { return NamesIn(InFolder(u"tmp"_s)); }

    /// A compiler that tells its number and holds the pipe for as long as it lives.
    void UseHangingCompiler()
    {
        const QString path = InFolder(u"bin/pilrc"_s);
        WriteBytes(path, "#!/bin/sh\nexec 9>" + QFile::encodeName(InFolder(u"alive"_s)) +
                             "\necho $$ >&9\nexec " FAKE_TOOL " hang\n");
        QFile::setPermissions(path, QFile::Permissions(0x7755));
    }

    void Start(QProcess &process, const QStringList &words) const
    {
        process.start(InFolder(u"bin/vellumo"_s), words);
        ASSERT_TRUE(process.waitForStarted());
    }

    void StartCreation(QProcess &process) const
    {
        Start(process, {u"create"_s, siteVisit, u"-o"_s, InFolder(u"out"_s), u"--pilrc"_s,
                        InFolder(u"bin/pilrc"_s)});
    }

    /// Waits for the compiler to be at work.
    void AwaitCompiler()
    {
        m_alive = open(QFile::encodeName(InFolder(u"alive"_s)), O_RDONLY | O_CLOEXEC);
        char number[32] = {};
        ASSERT_GT(read(m_alive, number, sizeof number - 1), 0);
        m_compiler = std::atoi(number);
        ASSERT_GT(m_compiler, 0);
    }

    /// Whether nobody holds the pipe any longer. Where the compiler lives on, it is ended here.
    bool CompilerEnded(int milliseconds)
    {
        pollfd waited = {m_alive, POLLIN, 0};
        const bool ended = poll(&waited, 1, milliseconds) == 1;
        if (!ended) {
            kill(m_compiler, SIGKILL);
            poll(&waited, 1, -1);
        }
        EXPECT_EQ(waited.revents, POLLHUP);
        close(m_alive);
        return ended;
    }

    static void ExpectEndedBy(int signal, QProcess &process)
    {
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::CrashExit);
        EXPECT_EQ(process.exitCode(), signal);
        EXPECT_EQ(process.readAllStandardError(), "");
        EXPECT_EQ(process.readAllStandardOutput(), "");
    }

    const QByteArray m_before = qgetenv("TMPDIR");
    QTemporaryDir m_folder;
    int m_alive = -1;
    pid_t m_compiler = 0;
};

TEST_F(Signals, EndTheToolAndRemoveTheFolder)
{
    UseHangingCompiler();
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        SCOPED_TRACE(signal);
        QProcess process;
        StartCreation(process);
        AwaitCompiler();
        EXPECT_EQ(LeftBehind().size(), 1);
        kill(static_cast<pid_t>(process.processId()), signal);
        ExpectEndedBy(signal, process);
        EXPECT_TRUE(CompilerEnded(20'000));
        EXPECT_EQ(LeftBehind(), QStringList());
        EXPECT_EQ(NamesIn(InFolder(u"out"_s)), QStringList());
    }
}

TEST_F(Signals, ThatWereIgnoredAtTheStartStayIgnored)
{
    UseHangingCompiler();
    QProcess process;
    process.setChildProcessModifier([] { std::signal(SIGHUP, SIG_IGN); });
    StartCreation(process);
    AwaitCompiler();
    kill(static_cast<pid_t>(process.processId()), SIGHUP);
    kill(static_cast<pid_t>(process.processId()), SIGTERM);
    ExpectEndedBy(SIGTERM, process);
    EXPECT_TRUE(CompilerEnded(20'000));
}

TEST_F(Signals, WhatAKilledRunLeftTheNextOneRemoves)
{
    UseHangingCompiler();
    QProcess killed;
    StartCreation(killed);
    AwaitCompiler();
    killed.kill();
    ASSERT_TRUE(killed.waitForFinished());
    EXPECT_FALSE(CompilerEnded(0)) << "nobody could end it";
    ASSERT_EQ(LeftBehind().size(), 1);

    QProcess living;
    StartCreation(living);
    AwaitCompiler();
    const QStringList ofLiving = LeftBehind();
    ASSERT_EQ(ofLiving.size(), 1) << "that of the killed one is gone";

    for (const QString &tool : {u"pilrc"_s, u"build-prc"_s}) {
        QFile::remove(InFolder(u"bin/"_s + tool));
        ASSERT_TRUE(QFile::copy(PROGRAMS "/"_L1 + tool, InFolder(u"bin/"_s + tool)));
    }
    QProcess next;
    StartCreation(next);
    ASSERT_TRUE(next.waitForFinished());
    EXPECT_EQ(next.exitCode(), 0) << next.readAllStandardError().toStdString();
    EXPECT_EQ(LeftBehind(), ofLiving);

    living.terminate();
    ExpectEndedBy(SIGTERM, living);
    EXPECT_TRUE(CompilerEnded(20'000));
    EXPECT_EQ(LeftBehind(), QStringList());
}

TEST_F(Signals, AFileThatGrowsTooLargeIsAnError)
{
    QProcess process;
    process.setChildProcessModifier([] {
        const rlimit limit = {1000, 1000};
        setrlimit(RLIMIT_FSIZE, &limit);
    });
    Start(process, {u"script"_s, siteVisit, u"-o"_s, InFolder(u"out/script.rcp"_s)});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 5);
    EXPECT_TRUE(process.readAllStandardError().contains("File too large"));
    EXPECT_EQ(NamesIn(InFolder(u"out"_s)), QStringList());
}

TEST_F(Signals, WithoutAReaderTheProgramEndsQuietly)
{
    QProcess process;
    process.setChildProcessModifier([] {
        int ends[2] = {};
        (void)!pipe(ends);
        dup2(ends[1], STDOUT_FILENO);
        close(ends[0]);
        close(ends[1]);
    });
    Start(process, {u"script"_s, siteVisit});
    ExpectEndedBy(SIGPIPE, process);
}

} // namespace
