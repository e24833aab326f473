#include "palmtools/common/held_signals.h"

#include "palmtools/common/files.h"
#include "palmtools/support.h"

#include <gtest/gtest.h>

#ifndef _WIN32

#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace palmtools {
namespace {

/// How a process ends that does this: the status that waitpid() gives.
int EndOf(const std::function<void()> &work)
{
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(0);
    }
    int status = -1;
    waitpid(child, &status, 0);
    return status;
}

TEST(HeldSignals, WaitUntilTheEnd)
{
    for (const int signal : {SIGHUP, SIGINT, SIGTERM, SIGPIPE}) {
        SCOPED_TRACE(signal);
        const TemporaryFolder folder;
        const int status = EndOf([&] {
            std::signal(signal, SIG_DFL);
            {
                const HeldSignals signals;
                const bool before = signals.OneWaits();
                std::raise(signal);
                if (!before && signals.OneWaits())
                    WriteContent("told", "");
            }
            WriteContent("never", "");
        });
        EXPECT_TRUE(WIFSIGNALED(status));
        EXPECT_EQ(WTERMSIG(status), signal);
        EXPECT_EQ(folder.Names(), "told ");
    }
}

TEST(HeldSignals, DoNotWaitWhereTheyAreIgnored)
{
    const int status = EndOf([] {
        std::signal(SIGHUP, SIG_IGN);
        const HeldSignals signals;
        std::raise(SIGHUP);
        _exit(signals.OneWaits() ? 1 : 7);
    });
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 7);
}

TEST(HeldSignals, StopTheWritingOfAFile)
{
    const TemporaryFolder folder;
    WriteContent("a.ro", "before");
    const int status = EndOf([] {
        std::signal(SIGTERM, SIG_DFL);
        const HeldSignals signals;
        std::raise(SIGTERM);
        const auto error = ReplaceFile("a.ro", std::string(1 << 20, 'x'));
        if (error && error->text == "cannot be written: Interrupted system call")
            WriteContent("told", "");
    });
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(ContentOf("a.ro"), "before");
    EXPECT_EQ(folder.Names(), "a.ro told ");
}

} // namespace
} // namespace palmtools

#endif
