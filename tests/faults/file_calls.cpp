#include "faults/file_calls.h"

#include <sys/syscall.h>

#include <algorithm>

namespace faults {
namespace {

constexpr FileCall calls[] = {
    {.number = SYS_open, .name = "open", .act = Act::Open, .path = 0, .flags = 1},
    {.number = SYS_openat, .name = "openat", .act = Act::Open, .folder = 0, .path = 1, .flags = 2},
    {.number = SYS_creat, .name = "creat", .act = Act::Open, .path = 0},

    {.number = SYS_read, .name = "read", .act = Act::Read, .descriptor = 0, .count = 2},
    {.number = SYS_pread64, .name = "pread", .act = Act::Read, .descriptor = 0, .count = 2},
    {.number = SYS_readv, .name = "readv", .act = Act::Read, .descriptor = 0},

    {.number = SYS_write, .name = "write", .act = Act::Write, .descriptor = 0, .count = 2},
    {.number = SYS_pwrite64, .name = "pwrite", .act = Act::Write, .descriptor = 0, .count = 2},
    {.number = SYS_writev, .name = "writev", .act = Act::Write, .descriptor = 0},
    {.number = SYS_pwritev, .name = "pwritev", .act = Act::Write, .descriptor = 0},
    {.number = SYS_sendfile, .name = "sendfile", .act = Act::Write, .descriptor = 0, .count = 3},
    {.number = SYS_copy_file_range,
     .name = "copy_file_range",
     .act = Act::Write,
     .descriptor = 2,
     .count = 4},
    {.number = SYS_ftruncate, .name = "ftruncate", .act = Act::Resize, .descriptor = 0},
    {.number = SYS_truncate, .name = "truncate", .act = Act::Resize, .path = 0},
    {.number = SYS_fallocate, .name = "fallocate", .act = Act::Resize, .descriptor = 0},

    {.number = SYS_fsync, .name = "fsync", .act = Act::Sync, .descriptor = 0},
    {.number = SYS_fdatasync, .name = "fdatasync", .act = Act::Sync, .descriptor = 0},
    {.number = SYS_syncfs, .name = "syncfs", .act = Act::Sync, .descriptor = 0},
    {.number = SYS_close, .name = "close", .act = Act::Close, .descriptor = 0},

    {.number = SYS_rename, .name = "rename", .act = Act::Name, .path = 0, .toPath = 1},
    {.number = SYS_renameat,
     .name = "renameat",
     .act = Act::Name,
     .folder = 0,
     .path = 1,
     .toFolder = 2,
     .toPath = 3},
    {.number = SYS_renameat2,
     .name = "renameat2",
     .act = Act::Name,
     .folder = 0,
     .path = 1,
     .toFolder = 2,
     .toPath = 3},
    {.number = SYS_link, .name = "link", .act = Act::Name, .path = 0, .toPath = 1},
    {.number = SYS_linkat,
     .name = "linkat",
     .act = Act::Name,
     .folder = 0,
     .path = 1,
     .toFolder = 2,
     .toPath = 3},
    {.number = SYS_symlink, .name = "symlink", .act = Act::Name, .toPath = 1},
    {.number = SYS_symlinkat, .name = "symlinkat", .act = Act::Name, .toFolder = 1, .toPath = 2},

    {.number = SYS_unlink, .name = "unlink", .act = Act::Remove, .path = 0},
    {.number = SYS_unlinkat, .name = "unlinkat", .act = Act::Remove, .folder = 0, .path = 1},
    {.number = SYS_rmdir, .name = "rmdir", .act = Act::Remove, .path = 0},
    {.number = SYS_mkdir, .name = "mkdir", .act = Act::MakeFolder, .path = 0},
    {.number = SYS_mkdirat, .name = "mkdirat", .act = Act::MakeFolder, .folder = 0, .path = 1},
    {.number = SYS_chmod, .name = "chmod", .act = Act::ChangeMode, .path = 0},
    {.number = SYS_fchmod, .name = "fchmod", .act = Act::ChangeMode, .descriptor = 0},
    {.number = SYS_fchmodat, .name = "fchmodat", .act = Act::ChangeMode, .folder = 0, .path = 1},
};

} // namespace

std::span<const FileCall> FileCalls()
{
    return calls;
}

const FileCall *FindFileCall(long number)
{
    const auto found = std::ranges::find(calls, number, &FileCall::number);
    return found == std::end(calls) ? nullptr : found;
}

} // namespace faults
