#pragma once

#include "cli/command_line.h"
#include "cli/console.h"

namespace vellumo {

/// Makes the databases of some projects in the output folder, or in the projects folder, and tells
/// the path of each; with the output "-", that of one goes to standard output. A project that does
/// not pass the review is not created; a database takes the place of an earlier one only when it
/// was read back and agrees with its project. Each project is tried; the worst exit is returned.
Exit CreateDatabases(const CommandLine &line, const Console &console);

} // namespace vellumo
