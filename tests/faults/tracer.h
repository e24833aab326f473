#pragma once

#include "faults/journal.h"
#include "faults/traced_run.h"

#include <map>
#include <set>

namespace faults {

/// Goes along with a process and those that it starts, counts their calls and strikes one.
class Tracer
{
public:
    /// The folder is the one around all folders that the processes work in.
    Tracer(pid_t first, const Strike &strike, std::filesystem::path folder)
        : m_first(first), m_strike(strike), m_folder(std::move(folder))
    {}

    /// To the end of all of them; the messages are not part of what is told.
    TracedRun Follow();

private:
    void OnStop(pid_t pid, int status);
    void OnCall(pid_t pid);
    void NoteEffect(const Tracee &tracee, const FileCall &call);
    void StrikeCall(pid_t pid, const FileCall &call);
    void KillAll();

    const pid_t m_first;
    const Strike m_strike;
    const std::filesystem::path m_folder;
    TracedRun m_run;
    Journal m_journal;
    std::set<pid_t> m_known;
    std::map<pid_t, int> m_errorsToReturn; ///< of calls that are made and then told as failed
};

} // namespace faults
