#pragma once

#include "faults/sandbox.h"

namespace faults {

/// Says what is wrong with what a run left; nothing where all is well. The target must be whole: as
/// it was before, or as the run makes it when nothing fails, which is told when the judge is made.
class Judge
{
public:
    Judge(const Scenario &scenario, const std::string &made);

    std::vector<std::string> FaultsOf(const Sandbox &sandbox, const TracedRun &run) const;

    /// Those of another run in the same folder after the first was killed: it must succeed, and
    /// remove what is left of temporary files.
    std::vector<std::string> FaultsOfNext(const Sandbox &sandbox, const TracedRun &run) const;

private:
    bool IsMade(const std::optional<std::string> &content) const;
    void JudgeFiles(const Sandbox &sandbox, bool succeeded, std::vector<std::string> &faults) const;
    void JudgeEnd(const TracedRun &run, std::vector<std::string> &faults) const;
    void JudgeRest(const Sandbox &sandbox, const TracedRun &run,
                   std::vector<std::string> &faults) const;

    const Scenario &m_scenario;
    const std::string m_made;
};

/// Bytes of a target, those that equal runs may give otherwise being the same.
std::string WithoutFreeBytes(const Scenario &scenario, std::string bytes);

} // namespace faults
