#include "platform/signals.h"

#include "platform/undoable.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <future>
#include <sys/resource.h>
#include <unistd.h>

using namespace vellumo;

namespace {

using SignalWatchDeathTest = testing::Test;

/// Waits until the watch's thread ends the program.
void Stay()
{
    for (;;)
        pause();
}

bool IsHandled(int signal)
{
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler != SIG_DFL && action.sa_handler != SIG_IGN;
}

TEST(SignalWatch, UndoesBeforeItCallsTheFunction)
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        std::promise<int> came;
        bool undone = false;
        const SignalWatch watch(BrokenPipe::IsAnError, [&](int number) { came.set_value(number); });
        const Undoable undoable([] {}, [&] { undone = true; });
        raise(signal);
        EXPECT_EQ(came.get_future().get(), signal);
        EXPECT_TRUE(undone);
    }
}

TEST(SignalWatch, LeavesSignalsAsTheyWere)
{
    std::signal(SIGHUP, SIG_IGN);
    {
        const SignalWatch watch(BrokenPipe::Ends, [](int) {});
        EXPECT_FALSE(IsHandled(SIGHUP)) << "a program under nohup goes on";
        for (const int signal : {SIGINT, SIGTERM, SIGPIPE, SIGXFSZ})
            EXPECT_TRUE(IsHandled(signal)) << signal;
    }
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE, SIGXFSZ})
        EXPECT_FALSE(IsHandled(signal)) << signal;
    std::signal(SIGHUP, SIG_DFL);
}

TEST(SignalWatch, TakesWritesThatFailForErrors)
{
    const SignalWatch watch(BrokenPipe::IsAnError, EndBySignal);
    int ends[2] = {};
    ASSERT_EQ(pipe(ends), 0);
    close(ends[0]);
    EXPECT_EQ(write(ends[1], "x", 1), -1);
    EXPECT_EQ(errno, EPIPE);
    close(ends[1]);

    const QTemporaryDir folder;
    const QByteArray name = QFile::encodeName(folder.filePath(QStringLiteral("large")));
    const int file = open(name, O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
    rlimit before = {};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit none = {0, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &none);
    EXPECT_EQ(write(file, "x", 1), -1);
    EXPECT_EQ(errno, EFBIG);
    setrlimit(RLIMIT_FSIZE, &before);
    close(file);
}

TEST_F(SignalWatchDeathTest, TheProgramEndsByItsSignal)
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE})
        EXPECT_EXIT(EndBySignal(signal), testing::KilledBySignal(signal), "^$");
    EXPECT_EXIT(
        {
            const SignalWatch watch(BrokenPipe::Ends, EndBySignal);
            raise(SIGTERM);
            Stay();
        },
        testing::KilledBySignal(SIGTERM), "^$");
}

TEST_F(SignalWatchDeathTest, AWriterWithoutAReaderComesNoFurther)
{
    EXPECT_EXIT(
        {
            const SignalWatch watch(BrokenPipe::Ends, EndBySignal);
            int ends[2] = {};
            (void)!pipe(ends);
            close(ends[0]);
            (void)!write(ends[1], "x", 1);
            std::fputs("went on", stderr);
            _exit(1);
        },
        testing::KilledBySignal(SIGPIPE), "^$");
}

} // namespace
