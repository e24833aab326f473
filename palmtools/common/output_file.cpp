#include "palmtools/common/output_file.h"

#include <cerrno>

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

namespace palmtools {
namespace {

std::error_code LastError()
{
    return {errno, std::generic_category()};
}

#ifndef _WIN32

/// Not every file has a disk behind it: these say so.
bool CannotBeSynced(int code)
{
    return code == EINVAL || code == ENOSYS || code == ENOTSUP;
}

std::error_code SyncDescriptor(int descriptor)
{
    if (fsync(descriptor) == 0 || CannotBeSynced(errno))
        return {};
    return LastError();
}

#endif

} // namespace

std::error_code OutputFile::Take(std::FILE *file)
{
    if (!file)
        return LastError();
    m_file.reset(file);
    // A buffer would fail late, and once more when the file is closed.
    std::setvbuf(file, nullptr, _IONBF, 0);
    return {};
}

std::error_code OutputFile::Create(const std::filesystem::path &path)
{
    return Take(std::fopen(path.string().c_str(), "wbx"));
}

std::error_code OutputFile::Write(std::string_view bytes)
{
    if (std::fwrite(bytes.data(), 1, bytes.size(), m_file.get()) == bytes.size())
        return {};
    return LastError();
}

/// Some disks tell only now that they are full.
std::error_code OutputFile::Close()
{
    return std::fclose(m_file.release()) == 0 ? std::error_code() : LastError();
}

#ifdef _WIN32

std::error_code OutputFile::OpenExisting(const std::filesystem::path &path, bool)
{
    return Take(std::fopen(path.string().c_str(), "r+b"));
}

std::error_code OutputFile::Sync()
{
    return std::fflush(m_file.get()) == 0 ? std::error_code() : LastError();
}

std::error_code SyncFolder(const std::filesystem::path &)
{
    return {};
}

#else

std::error_code OutputFile::OpenExisting(const std::filesystem::path &path, bool followsLink)
{
    const int flags = O_WRONLY | O_NOCTTY | O_CLOEXEC | (followsLink ? 0 : O_NOFOLLOW);
    const int descriptor = open(path.c_str(), flags);
    return descriptor < 0 ? LastError() : Take(fdopen(descriptor, "wb"));
}

std::error_code OutputFile::Sync()
{
    return SyncDescriptor(fileno(m_file.get()));
}

std::error_code SyncFolder(const std::filesystem::path &folder)
{
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    // A folder that one may write to and not list cannot be synced by name either.
    if (descriptor < 0)
        return errno == EACCES ? std::error_code() : LastError();
    const std::error_code failure = SyncDescriptor(descriptor);
    close(descriptor);
    return failure;
}

#endif

} // namespace palmtools
