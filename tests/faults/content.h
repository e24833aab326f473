#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

namespace faults {

/// The content of a file; none where there is none.
inline std::optional<std::string> ContentOf(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

} // namespace faults
