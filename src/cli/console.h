#pragma once

#include "cli/notice.h"

#include <istream>
#include <ostream>

namespace vellumo {

/// How a command ended; the program's exit status.
enum class Exit {
    Fine = 0,
    NotPassed = 1,  ///< findings, or the project does not pass
    WrongUse = 2,   ///< the command line makes no sense
    Unreadable = 3, ///< an input cannot be read or is not what it should be
    ToolFailed = 4, ///< a tool is missing or failed
    NotWritten = 5, ///< an output could not be written
};

/// The standard streams of a command: results on one, everything else on the other. No command
/// asks anything or uses colours.
struct Console {
    std::istream &in;
    std::ostream &out;
    std::ostream &err;
    bool json = false;         ///< notices are objects, on standard output, of whatever kind
    bool quiet = false;        ///< nobody wants advice, progress, nor results in words
    bool showProgress = false; ///< a person looks on

    /// Tells of a result, finding or warning. For a person its text is one line of the output.
    void Tell(const Notice &notice) const;
    /// Tells of an error; for a person, where it arose and what it is, beside the output.
    void Complain(const Notice &error) const;
    /// Tells how far a longer run is, if anybody looks on.
    void Progress(const QString &line) const;
    /// Puts bytes on standard output as they are.
    void Write(const QByteArray &bytes) const;
};

/// Complains of an error and passes the exit on. The exit gives the notice its code.
Exit Refuse(const Console &console, Exit exit, const Error &error);

/// Complains that the command line makes no sense, whatever the inputs are: nothing is tried.
Exit RefuseUse(const Console &console, const QString &reason);

} // namespace vellumo
