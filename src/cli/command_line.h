#pragma once

#include "model/result.h"

#include <QStringList>

/// What was asked for after the command's name.
struct CommandLine {
    QStringList projects;
    QString output;     ///< file or folder of -o; empty = not given
    QString identifier; ///< 32 upper-case hexadecimal digits of --guid; empty = not given
};

/// Which options a command takes besides --help.
struct AllowedOptions {
    bool identifier = false;
    bool severalProjects = false;
};

/// Reads the words after the command's name. Everything after "--" is a project.
Result<CommandLine> ParseCommandLine(const QStringList &words, const AllowedOptions &allowed);
