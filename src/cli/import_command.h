#pragma once

#include "cli/command_line.h"
#include "cli/console.h"

namespace vellumo {

/// Makes a project of a sheet (docs/csv.md), or appends its questions to the project of --into, and
/// writes it to the output file, in that project's place or to standard output. Where anything is
/// refused nothing is written, unless it is to be left out.
Exit ImportProject(const CommandLine &line, const Console &console);

} // namespace vellumo
