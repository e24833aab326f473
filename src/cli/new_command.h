#pragma once

#include "cli/command_line.h"
#include "cli/console.h"

namespace vellumo {

/// Writes a new project of this name, empty or with what is in an example; never over a file that
/// is there.
Exit WriteNewProject(const CommandLine &line, const Console &console);

} // namespace vellumo
