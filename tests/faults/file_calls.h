#pragma once

#include <span>

namespace faults {

enum class Act {
    Open,   ///< counts only where the file is opened for writing or made
    Read,   ///< counts only where the file lies in a folder that the command works in
    Write,  ///< also what copies from file to file
    Resize, ///< cuts, or takes room for, a file
    Sync,
    Close, ///< counts only where the file was open for writing
    Name,  ///< gives a file a name: renames or links it
    Remove,
    MakeFolder,
    ChangeMode,
};

constexpr int none = -1;

/// A system call that works with files, and which of its arguments, counted from 0, say how.
struct FileCall {
    long number;
    const char *name;
    Act act;
    int descriptor = none;              ///< of the file; that which is written to, where two are
    int folder = none, path = none;     ///< of the file; without a folder, from the current one
    int toFolder = none, toPath = none; ///< the name that it is given
    int flags = none;                   ///< how it is opened
    int count = none;                   ///< bytes to be written or read
};

/// The system calls that are counted and made to fail.
std::span<const FileCall> FileCalls();

/// None is the null pointer.
const FileCall *FindFileCall(long number);

} // namespace faults
