#include "faults/sandbox.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace faults {

Sandbox::Sandbox(const Scenario &scenario)
{
    std::string name = std::filesystem::temp_directory_path() / "vellumo-faults-XXXXXX";
    if (!mkdtemp(name.data()))
        throw std::runtime_error("no folder can be made for the runs");
    m_root = std::filesystem::canonical(name);
    std::filesystem::create_directory(Work());
    std::filesystem::create_directory(Temporary());
    for (const Scenario::File &file : scenario.files)
        std::ofstream(Work() / file.name, std::ios::binary) << file.bytes;
}

Sandbox::~Sandbox()
{
    std::error_code failure;
    std::filesystem::remove_all(m_root, failure);
}

TracedRun Sandbox::Run(const Scenario &scenario, const Strike &strike) const
{
    return RunTraced({scenario.words, Work(), Temporary()}, strike);
}

std::vector<std::string> Sandbox::LeftOver(const Scenario &scenario) const
{
    std::vector<std::string> left;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(m_root)) {
        const bool isKnown = entry.path() == Work() || entry.path() == Temporary() ||
                             entry.path() == Work() / scenario.target ||
                             std::ranges::any_of(scenario.files, [&](const Scenario::File &file) {
                                 return entry.path() == Work() / file.name;
                             });
        if (!isKnown)
            left.push_back(std::filesystem::relative(entry.path(), m_root));
    }
    return left;
}

} // namespace faults
