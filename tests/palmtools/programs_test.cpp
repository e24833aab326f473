#include "palmtools/pilrc/pilrc.h"
#include "palmtools/support.h"

#include <gtest/gtest.h>

#ifdef __linux__

#include <csignal>
#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// The two programs as they are built, ended and hindered from outside.

namespace palmtools {
namespace {

using Arguments = std::vector<std::string>;

/// A program that was started in the current folder; its errors go to the file "err".
class Program
{
public:
    /// Prepare runs in the new process just before the program does.
    template <typename Prepare> Program(Arguments arguments, Prepare prepare)
    {
        m_process = fork();
        if (m_process == 0) {
            prepare();
            Become(std::move(arguments));
        }
    }

    pid_t process() const { return m_process; }

    /// Waits for its end or, where it is traced, for its next stop.
    int Wait()
    {
        int status = -1;
        waitpid(m_process, &status, 0);
        return status;
    }

private:
    [[noreturn]] static void Become(Arguments arguments)
    {
        // The search for leaks does not work in a process that is traced.
        setenv("ASAN_OPTIONS", "detect_leaks=0", 1);
        if (!std::freopen("err", "w", stderr))
            _exit(126);
        arguments[0].insert(0, PROGRAMS "/");
        std::vector<char *> pointers;
        for (std::string &argument : arguments)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr);
        execv(pointers[0], pointers.data());
        _exit(127);
    }

    pid_t m_process;
};

const Arguments compile = {"pilrc", "-q", "-ro", "a.rcp", "out.prc"};
const Arguments build = {"build-prc", "out.prc", "Name", "Crtr", "a.ro"};

/// A folder with an input for each program and an older output.
class Programs : public testing::Test
{
protected:
    Programs()
    {
        WriteContent("a.rcp", "HEX \"abcd\" 1 " + Quoted(Repeated("x", 60000)));
        RunTool(RunPilrc, {"-q", "-ro", "a.rcp"});
        WriteContent("out.prc", before);
    }

    bool HasUnfinishedFile() const { return m_folder.Names().find(".new ") != std::string::npos; }

    /// Lets the program go on up to the so-manieth stop at which it has an unfinished file, and
    /// ends it there. Whether there was such a stop.
    bool EndAt(int point, int signal, Program &program) const
    {
        for (int seen = 0; WIFSTOPPED(program.Wait());) {
            if (HasUnfinishedFile() && ++seen == point) {
                kill(program.process(), signal);
                ptrace(PTRACE_DETACH, program.process(), nullptr, nullptr);
                return true;
            }
            ptrace(PTRACE_SYSCALL, program.process(), nullptr, nullptr);
        }
        return false;
    }

    const std::string before = "before";
    const TemporaryFolder m_folder;
};

bool CanTrace()
{
    Program program({"pilrc"}, [] { _exit(ptrace(PTRACE_TRACEME) == 0 ? 0 : 1); });
    return program.Wait() == 0;
}

TEST_F(Programs, LeaveNothingUnfinishedWhenASignalEndsThem)
{
    if (!CanTrace())
        GTEST_SKIP() << "no process may be traced here";
    for (const Arguments &arguments : {compile, build}) {
        for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
            int point = 0, kept = 0;
            for (bool ended = true; ended;) {
                SCOPED_TRACE(arguments[0] + ", signal " + std::to_string(signal) + " at stop " +
                             std::to_string(++point));
                WriteContent("out.prc", before);
                Program program(arguments, [] { ptrace(PTRACE_TRACEME); });
                ended = EndAt(point, signal, program);
                if (ended) {
                    const int status = program.Wait();
                    EXPECT_TRUE(WIFSIGNALED(status));
                    EXPECT_EQ(WTERMSIG(status), signal);
                }
                const bool isOld = ContentOf("out.prc") == before;
                EXPECT_TRUE(isOld || std::filesystem::file_size("out.prc") > 60000);
                EXPECT_TRUE(ended || !isOld);
                kept += isOld;
                EXPECT_EQ(m_folder.Names(), "a.rcp a.ro err out.prc ");
            }
            // Writing, syncing and closing are three calls, each with two stops, before the
            // renaming.
            EXPECT_GE(kept, 6);
            EXPECT_GT(point, kept);
        }
    }
}

TEST_F(Programs, TellOfALimitOfFilesAsOfAFullDisk)
{
    for (const Arguments &arguments : {compile, build}) {
        SCOPED_TRACE(arguments[0]);
        Program program(arguments, [] {
            std::signal(SIGXFSZ, SIG_DFL);
            const rlimit limit = {1000, 1000};
            setrlimit(RLIMIT_FSIZE, &limit);
        });
        const int status = program.Wait();
        EXPECT_TRUE(WIFEXITED(status));
        EXPECT_EQ(WEXITSTATUS(status), 1);
        EXPECT_NE(ContentOf("err").find("out.prc"), std::string::npos);
        EXPECT_NE(ContentOf("err").find("cannot be written: File too large\n"), std::string::npos);
        EXPECT_EQ(ContentOf("out.prc"), before);
        EXPECT_EQ(m_folder.Names(), "a.rcp a.ro err out.prc ");
    }
}

TEST_F(Programs, WriteIntoTheirOutputBehindWhatIsThere)
{
    std::filesystem::create_symlink("/dev/stdout", "link.prc");
    std::filesystem::create_symlink("/proc/self/fd/1", "own");
    const Arguments calls[] = {
        {"pilrc", "-q", "-ro", "a.rcp", "link.prc"},
        {"pilrc", "-q", "-ro", "a.rcp", "own"},
        {"pilrc", "-q", "-ro", "-o", "/dev/stdout", "a.rcp"},
        {"build-prc", "link.prc", "Name", "Crtr", "a.ro"},
    };
    for (const Arguments &arguments : calls) {
        SCOPED_TRACE(arguments[0] + ' ' + arguments.back());
        WriteContent("out.prc", "");
        const int output = open("out.prc", O_WRONLY | O_CLOEXEC);
        ASSERT_EQ(write(output, before.data(), before.size()), ssize_t(before.size()));
        Program program(arguments, [&] { dup2(output, STDOUT_FILENO); });
        EXPECT_EQ(program.Wait(), 0) << ContentOf("err");
        EXPECT_EQ(write(output, "after", 5), 5);
        close(output);
        const std::string written = ContentOf("out.prc");
        EXPECT_EQ(written.substr(0, before.size()), before);
        EXPECT_GT(written.size(), 60000u);
        EXPECT_TRUE(written.ends_with("after"));
        EXPECT_EQ(m_folder.Names(), "a.rcp a.ro err link.prc out.prc own ");
    }
}

TEST_F(Programs, EndQuietlyWhereNobodyReadsOn)
{
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    close(ends[0]);
    Program program({"pilrc", "-ro", "a.rcp"}, [&] {
        std::signal(SIGPIPE, SIG_DFL);
        dup2(ends[1], STDOUT_FILENO);
    });
    close(ends[1]);
    const int status = program.Wait();
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGPIPE);
    EXPECT_EQ(ContentOf("err"), "");
    EXPECT_FALSE(HasUnfinishedFile());
}

} // namespace
} // namespace palmtools

#endif
