#pragma once

#include "faults/scenarios.h"
#include "faults/traced_run.h"

namespace faults {

/// A folder with the files of a scenario, and one for temporary files; both go with it.
class Sandbox
{
public:
    explicit Sandbox(const Scenario &scenario);
    ~Sandbox();
    Sandbox(const Sandbox &) = delete;
    Sandbox &operator=(const Sandbox &) = delete;

    std::filesystem::path Work() const { return m_root / "work"; }
    std::filesystem::path Temporary() const { return m_root / "tmp"; }

    TracedRun Run(const Scenario &scenario, const Strike &strike) const;

    /// What lies there, in whatever depth, besides the scenario's files and its target.
    std::vector<std::string> LeftOver(const Scenario &scenario) const;

private:
    std::filesystem::path m_root;
};

} // namespace faults
