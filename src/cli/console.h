#pragma once

#include "model/result.h"

#include <QString>

#include <ostream>

/// How a command ended; the program's exit status.
enum class Exit {
    Fine = 0,
    NotPassed = 1,  ///< the project does not pass
    WrongUse = 2,   ///< the command line makes no sense
    Unreadable = 3, ///< an input cannot be read or is not what it should be
    ToolFailed = 4, ///< a tool is missing or failed
    NotWritten = 5, ///< an output could not be written
};

/// The two streams of a command: results on one, everything else on the other.
struct Console {
    std::ostream &out;
    std::ostream &err;

    /// Writes one line of the result.
    void Tell(const QString &line) const;
    /// Writes one line beside the result.
    void Complain(const QString &line) const;
};

/// Complains of an error and passes the exit on.
Exit Refuse(const Console &console, Exit exit, const Error &error);
