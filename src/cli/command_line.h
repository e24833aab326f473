#pragma once

#include "platform/result.h"

#include <QStringList>

namespace vellumo {

/// Which words a command takes besides --help and --json.
struct CommandShape {
    int mostInputs = 1;
    QLatin1StringView whichInput = {}; ///< what is asked for when none is named
    bool output = false;               ///< -o NAME
    bool identifier = false;           ///< --guid HEX32
    bool timeout = false;              ///< --timeout SECONDS
};

/// What was asked for beside the command's name.
struct CommandLine {
    QStringList inputs;      ///< at least one; "-" is standard input
    QString output = {};     ///< of -o; empty = not given
    QString identifier = {}; ///< 32 upper-case hexadecimal digits of --guid; empty = not given
    int timeoutSeconds = 60; ///< of --timeout; 1 or more
    bool json = false;
};

/// Where in the words of the whole line the command's name stands: the first that is no option and
/// no option's value. None stands after "--"; then, and where there is none at all, it is -1.
qsizetype CommandAt(const QStringList &words);

/// Reads the words but the command's name. Everything after "--" is an input.
Result<CommandLine> ParseCommandLine(const QStringList &words, const CommandShape &shape);

} // namespace vellumo
