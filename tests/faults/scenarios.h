#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace faults {

/// A command that makes a file of others, and what stood there before.
struct Scenario {
    std::string name;
    std::vector<std::string> words; ///< in the folder where the files lie
    struct File {
        std::string name, bytes;
    };
    std::vector<File> files = {}; ///< that are there before
    std::string target = {};      ///< the one that is made; one of the files, or none of them
    /// Where equal runs give different bytes: the times of a database.
    std::size_t freeStart = 0, freeSize = 0;
};

/// Where the programs and the files lie.
struct Places {
    std::filesystem::path programs; ///< a folder with vellumo and the tools
    std::filesystem::path careless; ///< a program that does not write as it should
    std::filesystem::path data, examples;
};

std::vector<Scenario> Scenarios(const Places &places);

} // namespace faults
