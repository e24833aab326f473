#pragma once

#include "faults/file_calls.h"

#include <filesystem>
#include <string>
#include <vector>

namespace faults {

enum class Fault { None, Kill, Terminate, NoSpace, InputOutput, Half };

/// What happens to one system call, counted from 1, of all that a command and the programs that it
/// starts make to work with files.
struct Strike {
    Fault fault = Fault::None;
    std::size_t at = 0;
};

/// What is run: the first word is the path of a program.
struct Command {
    std::vector<std::string> words;
    std::filesystem::path folder;    ///< in which it runs
    std::filesystem::path temporary; ///< its TMPDIR, beside the folder
};

struct CountedCall {
    const FileCall *call;
    std::filesystem::path file; ///< where it is known
};

/// What a command did.
struct TracedRun {
    std::vector<CountedCall> calls = {}; ///< in their order
    int status = 0;                      ///< as wait() gives it
    bool endedByUs = false;              ///< killed as the strike said
    bool wasAskedToEnd = false;          ///< by SIGTERM, likewise
    bool hung = false;                   ///< killed since it did not end
    const FileCall *struck = nullptr;    ///< none = it ended before
    /// A sync was made to fail, or the close of a file that had not been synced since it was
    /// written, which is where some disks tell that they are full.
    bool lostData = false;
    std::vector<std::filesystem::path> namedTooEarly = {}; ///< given to files not yet on disk
    std::string messages = {};                             ///< from standard error
};

/// Whether this process may trace another; where it may not, the reason.
std::string WhyNoTracing();

/// Runs a command to its end, without input, with one of its system calls struck.
TracedRun RunTraced(const Command &command, const Strike &strike);

} // namespace faults
