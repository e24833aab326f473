#pragma once

#include "palmtools/common/bytes.h"
#include "palmtools/common/result.h"

#include <filesystem>
#include <optional>
#include <string_view>

namespace palmtools {

/// All bytes of a file.
Result<Bytes> ReadFile(const std::filesystem::path &path);

/// Makes the file have these bytes, or tells why it has not.
///
/// They are written to a new file in the same folder, which takes the place of the target once they
/// are on the disk. On a failure the new file is removed and the target, if there was one, is as it
/// was before; so it is where a signal ends the program meanwhile. Links are followed as TargetOf()
/// does. What exists and is neither file nor folder, such as a device or a pipe, is written into.
std::optional<Error> ReplaceFile(const std::filesystem::path &path, std::string_view bytes);

} // namespace palmtools
