#pragma once

#include "palmtools/common/result.h"

#include <filesystem>

namespace palmtools {

/// Where what is written under a path belongs.
struct Target {
    std::filesystem::path path;
    /// The path is a link of the system's to something open that has no name, such as a pipe.
    bool isNameless = false;
};

/// The end of the links that a path leads along; there need not be a file yet.
///
/// In a folder where others than the user and root may write, only links that belong to these two
/// are followed; any other is an error, as somebody else could have laid it there.
Result<Target> TargetOf(const std::filesystem::path &path);

} // namespace palmtools
