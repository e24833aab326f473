#pragma once

#include "cli/command_line.h"
#include "cli/console.h"

namespace vellumo {

/// Writes the resource script of a project to the output file or to standard output.
Exit WriteScript(const CommandLine &line, const Console &console);

/// Reads a project and saves it as the designer would: to the output file, or in its place. A pipe,
/// such as /dev/stdin, has no place that a project could be put into. What could
/// not be read again is not written.
Exit RewriteProject(const CommandLine &line, const Console &console);

} // namespace vellumo
