#pragma once

#include "cli/command_line.h"
#include "cli/console.h"

#include <span>

namespace vellumo {

/// A command of vellumo; everything that is to be said of it stands in its row.
struct Command {
    QLatin1StringView name;
    QLatin1StringView synopsis; ///< what follows the name, in lines, such as "PROJECT... [-o DIR]"
    QLatin1StringView help;     ///< what it does, in lines that fit a terminal
    CommandShape shape;
    Exit (*run)(const CommandLine &line, const Console &console);
    Exit notWritten = Exit::NotWritten; ///< where standard output cannot be
    QStringList (*sources)() = nullptr; ///< what --from takes, where that is no file
};

/// In the order in which the help tells of them.
std::span<const Command> Commands();

/// The command of exactly this name; null where there is none.
const Command *CommandNamed(const QString &name);

/// Their names, likewise.
QStringList CommandNames();

/// What each exit status means, in lines of the help.
QString ExitStatuses();

/// What --help prints, and what it prints of one command alone.
QString HelpText();
QString HelpText(const Command &command);

} // namespace vellumo
