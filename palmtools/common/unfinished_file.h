#pragma once

#include "palmtools/common/output_file.h"

#include <filesystem>
#include <string_view>
#include <system_error>

namespace palmtools {

/// A new file in the folder of another, whose place it takes when it is finished; else it is
/// removed. Nobody can tell its name beforehand.
class UnfinishedFile
{
public:
    explicit UnfinishedFile(std::filesystem::path target) : m_target(std::move(target)) {}
    UnfinishedFile(const UnfinishedFile &) = delete;
    UnfinishedFile &operator=(const UnfinishedFile &) = delete;
    ~UnfinishedFile();

    // The steps, in this order; after one that fails comes none.

    /// Fails also where the target exists and may not be written; else the new file has its rights,
    /// owner and group, see OutputFile::CreateLike().
    std::error_code Create();
    std::error_code Write(std::string_view bytes) { return m_file.Write(bytes); }
    /// Sees that the bytes are on the disk, and closes the file.
    std::error_code Close();
    /// Puts it in the place of the target. Where only the new name cannot be seen to the disk, that
    /// is a failure too, but the target is the new file.
    std::error_code Finish();

private:
    std::filesystem::path m_target, m_path; ///< the path is empty where there is nothing to remove
    OutputFile m_file;
};

} // namespace palmtools
