#include "faults/tracer.h"

#include "faults/called_file.h"

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <optional>

namespace faults {
namespace {

void Continue(pid_t pid, int signal = 0)
{
    ptrace(PTRACE_CONT, pid, nullptr, signal);
}

int ErrorOf(Fault fault)
{
    return fault == Fault::NoSpace ? ENOSPC : EIO;
}

/// Of the parts of writev() or readv() the first alone is left, and half of it.
void Shorten(Tracee &tracee, const FileCall &call)
{
    if (call.count != none)
        return tracee.SetArgument(call.count, tracee.Argument(call.count) / 2);
    if (const auto part = tracee.FirstPart()) {
        tracee.SetCallNumber(call.number == SYS_writev    ? SYS_write
                             : call.number == SYS_pwritev ? SYS_pwrite64
                                                          : SYS_read);
        tracee.SetArgument(1, part->first);
        tracee.SetArgument(2, part->second / 2);
    }
}

} // namespace

TracedRun Tracer::Follow()
{
    m_known.insert(m_first);
    for (;;) {
        int status = 0;
        const pid_t pid = waitpid(-1, &status, __WALL);
        if (pid < 0 && errno == ECHILD)
            break;
        if (pid < 0) { // the alarm
            m_run.hung = true;
            KillAll();
        } else if (WIFSTOPPED(status)) {
            OnStop(pid, status);
        } else {
            m_known.erase(pid);
            if (pid == m_first)
                m_run.status = status;
        }
    }
    m_run.namedTooEarly = m_journal.NamedTooEarly();
    return m_run;
}

void Tracer::OnStop(pid_t pid, int status)
{
    const int signal = WSTOPSIG(status);
    const int event = status >> 16;
    const bool isNew = m_known.insert(pid).second;
    if (event == PTRACE_EVENT_SECCOMP)
        return OnCall(pid);
    if (signal == (SIGTRAP | 0x80)) { // back from the call
        if (const auto error = m_errorsToReturn.extract(pid))
            Tracee(pid).ReturnError(error.mapped());
        return Continue(pid);
    }
    const bool isOurs = event != 0 || (isNew && signal == SIGSTOP);
    Continue(pid, isOurs ? 0 : signal);
}

void Tracer::OnCall(pid_t pid)
{
    const Tracee tracee(pid);
    const FileCall *call = FindFileCall(tracee.CallNumber());
    if (!call || !Counts(tracee, *call, m_folder))
        return Continue(pid);
    m_run.calls.push_back({call, NameOf(tracee, *call)});
    if (m_run.calls.size() == m_strike.at && m_strike.fault != Fault::None)
        return StrikeCall(pid, *call);
    NoteEffect(tracee, *call);
    Continue(pid);
}

void Tracer::NoteEffect(const Tracee &tracee, const FileCall &call)
{
    const auto status = StatusOf(FileOf(tracee, call));
    if (!status)
        return;
    const FileId file = IdOf(*status);
    if (call.act == Act::Write || call.act == Act::Resize)
        m_journal.Wrote(file);
    else if (call.act == Act::Sync)
        m_journal.Synced(file);
    else if (call.act == Act::Name)
        m_journal.Named(file, NameOf(tracee, call));
    else if (call.act == Act::Remove && status->st_nlink == 1)
        m_journal.Removed(file);
}

void Tracer::StrikeCall(pid_t pid, const FileCall &call)
{
    Tracee tracee(pid);
    m_run.struck = &call;
    if (m_strike.fault == Fault::Kill) {
        m_run.endedByUs = true;
        return KillAll();
    }
    if (m_strike.fault == Fault::Terminate) {
        m_run.wasAskedToEnd = true;
        NoteEffect(tracee, call);
        kill(-m_first, SIGTERM);
        return Continue(pid);
    }
    if (m_strike.fault == Fault::Half) {
        NoteEffect(tracee, call);
        Shorten(tracee, call);
        return Continue(pid);
    }
    const auto status = StatusOf(FileOf(tracee, call));
    const bool isUnsafe = status && !m_journal.IsSafe(IdOf(*status));
    if (status && (call.act == Act::Sync || (call.act == Act::Close && isUnsafe))) {
        m_journal.SyncFailed(IdOf(*status));
        m_run.lostData = true;
    }
    if (call.act != Act::Close) {
        tracee.SkipWith(ErrorOf(m_strike.fault));
        return Continue(pid);
    }
    // A close that fails has closed the file all the same.
    m_errorsToReturn[pid] = ErrorOf(m_strike.fault);
    ptrace(PTRACE_SYSCALL, pid, nullptr, nullptr);
}

void Tracer::KillAll()
{
    kill(-m_first, SIGKILL);
    for (const pid_t pid : m_known)
        kill(pid, SIGKILL);
}

} // namespace faults
