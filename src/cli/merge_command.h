#pragma once

#include "cli/command_line.h"
#include "cli/console.h"

namespace vellumo {

/// Writes a project with the form information of the first project and the questions of all.
Exit MergeProjects(const CommandLine &line, const Console &console);

} // namespace vellumo
