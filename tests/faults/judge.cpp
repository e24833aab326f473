#include "faults/judge.h"

#include "faults/content.h"

#include <sys/wait.h>

#include <algorithm>
#include <csignal>

namespace faults {
namespace {

bool Succeeded(const TracedRun &run)
{
    return WIFEXITED(run.status) && WEXITSTATUS(run.status) == 0;
}

} // namespace

std::string WithoutFreeBytes(const Scenario &scenario, std::string bytes)
{
    for (std::size_t i = scenario.freeStart;
         i < std::min(bytes.size(), scenario.freeStart + scenario.freeSize); ++i)
        bytes[i] = '\0';
    return bytes;
}

Judge::Judge(const Scenario &scenario, const std::string &made)
    : m_scenario(scenario), m_made(WithoutFreeBytes(scenario, made))
{}

std::vector<std::string> Judge::FaultsOf(const Sandbox &sandbox, const TracedRun &run) const
{
    std::vector<std::string> faults;
    JudgeFiles(sandbox, Succeeded(run), faults);
    JudgeEnd(run, faults);
    JudgeRest(sandbox, run, faults);
    return faults;
}

std::vector<std::string> Judge::FaultsOfNext(const Sandbox &sandbox, const TracedRun &run) const
{
    std::vector<std::string> faults;
    JudgeFiles(sandbox, Succeeded(run), faults);
    if (!Succeeded(run))
        faults.push_back("the next run fails: " + run.messages);
    for (const std::string &left : sandbox.LeftOver(m_scenario))
        if (left.starts_with("tmp/"))
            faults.push_back("the next run does not remove " + left);
    return faults;
}

bool Judge::IsMade(const std::optional<std::string> &content) const
{
    return content && WithoutFreeBytes(m_scenario, *content) == m_made;
}

void Judge::JudgeFiles(const Sandbox &sandbox, bool succeeded,
                       std::vector<std::string> &faults) const
{
    std::optional<std::string> before;
    for (const Scenario::File &file : m_scenario.files) {
        if (file.name == m_scenario.target)
            before = file.bytes;
        else if (ContentOf(sandbox.Work() / file.name) != file.bytes)
            faults.push_back(file.name + " has changed");
    }
    const auto now = ContentOf(sandbox.Work() / m_scenario.target);
    if (succeeded && !IsMade(now))
        faults.push_back("success without the whole " + m_scenario.target);
    else if (!now && before)
        faults.push_back(m_scenario.target + " is gone");
    else if (now && now != before && !IsMade(now))
        faults.push_back(m_scenario.target + " is neither old nor new");
}

void Judge::JudgeEnd(const TracedRun &run, std::vector<std::string> &faults) const
{
    if (run.hung)
        faults.emplace_back("the command hung");
    else if (!run.endedByUs && !WIFEXITED(run.status) &&
             !(run.wasAskedToEnd && WTERMSIG(run.status) == SIGTERM))
        faults.push_back("ended by signal " + std::to_string(WTERMSIG(run.status)));
    if (run.lostData && Succeeded(run))
        faults.emplace_back("success after a sync that failed");
    // A traced process that sends itself a signal comes to its next line, which exits, before that.
    const bool endedAsAsked =
        run.wasAskedToEnd && WIFEXITED(run.status) && WEXITSTATUS(run.status) == 128 + SIGTERM;
    if (WIFEXITED(run.status) && WEXITSTATUS(run.status) != 0 && !endedAsAsked &&
        run.messages.empty())
        faults.emplace_back("the failure is not told");
}

void Judge::JudgeRest(const Sandbox &sandbox, const TracedRun &run,
                      std::vector<std::string> &faults) const
{
    if (std::ranges::count(run.namedTooEarly, sandbox.Work() / m_scenario.target) > 0)
        faults.push_back(m_scenario.target + " gets its place before it is on the disk");
    // Nothing can be done about a file that cannot be removed.
    const bool isExcused =
        run.endedByUs || run.hung || (run.struck && run.struck->act == Act::Remove);
    if (const auto left = sandbox.LeftOver(m_scenario); !isExcused && !left.empty())
        faults.push_back("left behind: " + left.front());
}

} // namespace faults
