#pragma once

#include "cli/command_line.h"
#include "cli/console.h"

namespace vellumo {

/// Writes a project as a table for spreadsheets (docs/csv.md) to the output file or to standard
/// output.
Exit ExportProject(const CommandLine &line, const Console &console);

} // namespace vellumo
