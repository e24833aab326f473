#pragma once

#include "faults/file_calls.h"
#include "faults/tracee.h"

#include <sys/stat.h>

namespace faults {

// About which file a system call is that a tracee is about to make.

std::optional<struct stat> StatusOf(const std::filesystem::path &path);

FileId IdOf(const struct stat &status);

/// The file as this process finds it; empty for symlink().
std::filesystem::path FileOf(const Tracee &tracee, const FileCall &call);

/// The file by its name, and by the new one where it is given one.
std::filesystem::path NameOf(const Tracee &tracee, const FileCall &call);

/// Whether the call works with a file on disk in a way that counts; the folder is the one around
/// all folders that the command works in.
bool Counts(const Tracee &tracee, const FileCall &call, const std::filesystem::path &folder);

} // namespace faults
