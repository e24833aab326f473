#pragma once

#include "cli/command_line.h"
#include "cli/console.h"

namespace vellumo {

/// Tells what is in a project or a database: names, counts, sizes, and the questions with their
/// types, column names and titles; and what is to be remarked on a database.
Exit TellInfo(const CommandLine &line, const Console &console);

} // namespace vellumo
