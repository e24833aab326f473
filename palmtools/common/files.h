#pragma once

#include "palmtools/common/bytes.h"
#include "palmtools/common/result.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string_view>

namespace palmtools {

/// Bytes that a file can have which is read: larger than any that comes of a designed form.
constexpr std::size_t largestFile = std::size_t{64} << 20;

/// All bytes of a file. One that is larger is an error, and no more of it is read; so a device
/// without an end is one.
Result<Bytes> ReadFile(const std::filesystem::path &path);

/// Makes the file have these bytes, or tells why it has not, as where there is a file that the user
/// may not write.
///
/// They are written to a new file in the same folder, which takes the place of the target once they
/// are on the disk, and takes over its rights, owner and group as OutputFile::CreateLike() does. On
/// a failure the new file is removed and the target, if there was one, is as it was before; so it
/// is where a signal ends the program meanwhile. Links are followed as TargetOf() does. What exists
/// and is neither file nor folder, such as a device or a pipe, is written into; so is a
/// descriptor of this process, behind what was written before.
std::optional<Error> ReplaceFile(const std::filesystem::path &path, std::string_view bytes);

/// Whether ReplaceFile() would write into what is there, such as a device, and not make a new file.
bool IsWrittenInto(const std::filesystem::path &path);

} // namespace palmtools
