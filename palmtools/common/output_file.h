#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

namespace palmtools {

/// What the last call of the C library failed by.
std::error_code LastError();

/// As std::fopen(), for every name that a file can have; null where that fails.
std::FILE *OpenFile(const std::filesystem::path &path, const char *mode);

/// A file that is open for writing, without a buffer of its own. What fails is told by the
/// platform's code; the code is zero where nothing failed.
class OutputFile
{
public:
    /// Makes a file that did not exist; fails where there is anything, and be it a link.
    std::error_code Create(const std::filesystem::path &path);
    /// As Create(), and gives it the rights of an old file, and its owner and its group as far as
    /// the user may give them away; without the group, a group has no rights.
    std::error_code CreateLike(const std::filesystem::path &path, const std::filesystem::path &old);
    /// Opens what exists, such as a device or a pipe.
    std::error_code OpenExisting(const std::filesystem::path &path, bool followsLink);
    /// Opens what a descriptor of this process is open to, where it stands; the descriptor stays
    /// open.
    std::error_code OpenOwn(int descriptor);

    std::error_code Write(std::string_view bytes);
    /// Waits until all that was written is on the disk; what cannot be waited for, as a pipe, is
    /// no failure.
    std::error_code Sync();
    std::error_code Close();

private:
    struct Closer {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };

    std::error_code Take(std::FILE *file);

    std::unique_ptr<std::FILE, Closer> m_file;
};

/// Waits until the names in a folder are on the disk, where the platform and the rights of the user
/// allow that.
std::error_code SyncFolder(const std::filesystem::path &folder);

/// Whether the user may write to a file that exists; the code tells why not.
std::error_code CheckMayWrite(const std::filesystem::path &path);

} // namespace palmtools
