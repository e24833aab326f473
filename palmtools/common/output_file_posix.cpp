#include "palmtools/common/output_file.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace palmtools {
namespace {

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

/// Without the group, its rights would be those of another one. A file system without owners or
/// rights has its own.
void TakeOver(int descriptor, const struct stat &old)
{
    mode_t rights = old.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
    if (fchown(descriptor, uid_t(-1), old.st_gid) != 0)
        rights &= ~mode_t(S_IRWXG);
    [[maybe_unused]] const int sameOwner = fchown(descriptor, old.st_uid, gid_t(-1));
    [[maybe_unused]] const int sameRights = fchmod(descriptor, rights);
}

} // namespace

std::FILE *OpenFile(const std::filesystem::path &path, const char *mode)
{
    return std::fopen(path.c_str(), mode);
}

std::error_code OutputFile::Create(const std::filesystem::path &path)
{
    return Take(OpenFile(path, "wbx"));
}

std::error_code OutputFile::CreateLike(const std::filesystem::path &path,
                                       const std::filesystem::path &old)
{
    struct stat status = {};
    if (lstat(old.c_str(), &status) != 0)
        return LastError();
    constexpr int newFile = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    // Nobody else can open it before it has its rights.
    const int descriptor = open(path.c_str(), newFile, S_IRUSR | S_IWUSR);
    if (descriptor < 0)
        return LastError();
    TakeOver(descriptor, status);
    return Take(fdopen(descriptor, "wb"));
}

std::error_code OutputFile::OpenExisting(const std::filesystem::path &path, bool followsLink)
{
    const int flags = O_WRONLY | O_NOCTTY | O_CLOEXEC | (followsLink ? 0 : O_NOFOLLOW);
    const int descriptor = open(path.c_str(), flags);
    return descriptor < 0 ? LastError() : Take(fdopen(descriptor, "wb"));
}

std::error_code OutputFile::OpenOwn(int descriptor)
{
    const int own = fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
    return own < 0 ? LastError() : Take(fdopen(own, "wb"));
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

std::error_code CheckMayWrite(const std::filesystem::path &path)
{
    return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0 ? std::error_code()
                                                                    : LastError();
}

} // namespace palmtools
