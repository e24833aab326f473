#include "faults/called_file.h"

#include <fcntl.h>

namespace faults {
namespace {

bool IsOnDisk(const std::optional<struct stat> &status)
{
    return status && (S_ISREG(status->st_mode) || S_ISDIR(status->st_mode));
}

bool OpensToWrite(const Tracee &tracee, const FileCall &call)
{
    const auto flags =
        call.flags == none ? O_WRONLY : static_cast<int>(tracee.Argument(call.flags));
    return (flags & O_ACCMODE) != O_RDONLY || (flags & (O_CREAT | O_TRUNC)) != 0;
}

} // namespace

std::optional<struct stat> StatusOf(const std::filesystem::path &path)
{
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 ? std::optional(status) : std::nullopt;
}

FileId IdOf(const struct stat &status)
{
    return {status.st_dev, status.st_ino};
}

std::filesystem::path FileOf(const Tracee &tracee, const FileCall &call)
{
    if (call.descriptor != none)
        return tracee.Descriptor(call.descriptor);
    return call.path != none ? tracee.Path(call.folder, call.path) : std::filesystem::path();
}

std::filesystem::path NameOf(const Tracee &tracee, const FileCall &call)
{
    std::error_code failure;
    if (call.toPath != none) {
        const auto name = tracee.Path(call.toFolder, call.toPath);
        return std::filesystem::weakly_canonical(name.parent_path(), failure) / name.filename();
    }
    const auto file = FileOf(tracee, call);
    const auto target = std::filesystem::read_symlink(file, failure);
    return failure ? file : target;
}

bool Counts(const Tracee &tracee, const FileCall &call, const std::filesystem::path &folder)
{
    const auto status = StatusOf(FileOf(tracee, call));
    switch (call.act) {
    case Act::Open:
        return (!status || IsOnDisk(status)) && OpensToWrite(tracee, call);
    case Act::Read:
        return IsOnDisk(status) && NameOf(tracee, call).string().starts_with(folder.string());
    case Act::Close:
        return IsOnDisk(status) && tracee.IsWritable(call.descriptor);
    default:
        return call.descriptor == none || IsOnDisk(status);
    }
}

} // namespace faults
