#include "faults/traced_run.h"

#include "faults/tracer.h"

#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstring>

namespace faults {
namespace {

constexpr unsigned secondsToHang = 60;
constexpr int cannotStart = 126;

/// Lets the kernel stop this process and its children before the calls that are counted, and leave
/// all others alone.
bool InstallFilter()
{
    std::vector<sock_filter> filter = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, arch)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, AUDIT_ARCH_X86_64, 1, 0),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
    };
    for (const FileCall &call : FileCalls()) {
        const auto number = static_cast<__u32>(call.number);
        filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, number, 0, 1));
        filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRACE));
    }
    filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    const sock_fprog program = {static_cast<unsigned short>(filter.size()), filter.data()};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

[[noreturn]] void BeTraced(const Command &command, int messages)
{
    setpgid(0, 0);
    const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
    const bool ready = dup2(nothing, 0) == 0 && dup2(nothing, 1) == 1 && dup2(messages, 2) == 2 &&
                       chdir(command.folder.c_str()) == 0 &&
                       setenv("TMPDIR", command.temporary.c_str(), 1) == 0 &&
                       ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == 0;
    std::vector<char *> words;
    for (const std::string &word : command.words)
        words.push_back(const_cast<char *>(word.c_str()));
    words.push_back(nullptr);
    if (ready && raise(SIGSTOP) == 0 && InstallFilter())
        execv(words[0], words.data());
    std::perror(words[0]);
    _exit(cannotStart);
}

/// Starts the command; it stands still, and the other end of its standard error can be read. -1
/// where it cannot be traced.
pid_t Start(const Command &command, int &messages)
{
    int ends[2] = {};
    if (pipe2(ends, O_CLOEXEC) != 0)
        return -1;
    const pid_t pid = fork();
    if (pid == 0)
        BeTraced(command, ends[1]);
    close(ends[1]);
    messages = ends[0];
    int status = 0;
    constexpr long options = PTRACE_O_EXITKILL | PTRACE_O_TRACESECCOMP | PTRACE_O_TRACESYSGOOD |
                             PTRACE_O_TRACEFORK | PTRACE_O_TRACEVFORK | PTRACE_O_TRACECLONE |
                             PTRACE_O_TRACEEXEC;
    if (pid > 0 && waitpid(pid, &status, 0) == pid && WIFSTOPPED(status)) {
        if (ptrace(PTRACE_SETOPTIONS, pid, nullptr, options) == 0)
            return pid;
        kill(pid, SIGKILL);
        waitpid(pid, &status, 0);
    }
    close(messages);
    return -1;
}

void OnAlarm(int /*signal*/) {}

std::string ReadToEnd(int descriptor)
{
    std::string text;
    char part[4096];
    for (ssize_t got = 0; (got = read(descriptor, part, sizeof part)) > 0;)
        text.append(part, static_cast<std::size_t>(got));
    close(descriptor);
    return text;
}

} // namespace

std::string WhyNoTracing()
{
    const Command command = {{"/bin/true"}, "/", "/"};
    const int status = RunTraced(command, {}).status;
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0)
        return {};
    return "no process can be traced here";
}

TracedRun RunTraced(const Command &command, const Strike &strike)
{
    int messages = -1;
    const pid_t pid = Start(command, messages);
    if (pid < 0)
        return {.status = cannotStart << 8};
    struct sigaction onAlarm = {};
    onAlarm.sa_handler = OnAlarm; // without SA_RESTART, so that it ends the waiting
    sigaction(SIGALRM, &onAlarm, nullptr);
    alarm(secondsToHang);
    ptrace(PTRACE_CONT, pid, nullptr, nullptr);
    TracedRun run = Tracer(pid, strike, command.folder.parent_path()).Follow();
    alarm(0);
    run.messages = ReadToEnd(messages);
    return run;
}

} // namespace faults
