#pragma once

#include "cli/command_line.h"
#include "cli/console.h"

namespace vellumo {

/// Puts items from a text or a table (docs/csv.md) in the place of those of a question or behind
/// them, and writes the project to the output file or in its place. Where an item is refused
/// nothing is written, unless it is to be left out.
Exit SetItems(const CommandLine &line, const Console &console);

} // namespace vellumo
