#pragma once

#include "cli/command_line.h"
#include "cli/ending.h"
#include "model/project.h"

namespace vellumo {

// Commands that write a project: to the file of -o or, without it, in the place of the one that
// they were given. That is "-" where standard input had it.

/// Complains where it cannot be written there: a pipe, such as /dev/stdin, has no place that a
/// project could be put into, and standard output takes no project beside objects for a program.
Exit CheckTarget(const QString &given, const CommandLine &line, const Console &console);

/// Writes a project there; the ending has this code. What could not be read again is not written,
/// and the complaint names the input.
Ending DeliverProject(const Project &project, const QString &inputName, const QString &target,
                      QLatin1StringView code, const Console &console);

/// The ending, if it is a good one, with a sentence of what became of the project, and what else a
/// program is told of that. A person is told beside it where it went to standard output.
Ending Said(const Ending &ending, const QString &text, const QJsonObject &more,
            const QString &target, const Console &console);

} // namespace vellumo
