#pragma once

#include "palmtools/common/result.h"

#include <filesystem>

namespace palmtools {

/// Where what is written under a path belongs.
struct Target {
    std::filesystem::path path;
    /// The path is a link of the system's to something open that has no name, such as a pipe.
    bool isNameless = false;
    /// The descriptor of this process that the path is, as /dev/stdout is, or -1.
    int ownDescriptor = -1;
};

/// The end of the links that a path leads along; there need not be a file yet. A descriptor of this
/// process is an end, also where it is open to a file with a name.
///
/// In a folder where others than the user and root may write, only links that belong to these two
/// are followed; any other is an error, as somebody else could have laid it there.
Result<Target> TargetOf(const std::filesystem::path &path);

} // namespace palmtools
