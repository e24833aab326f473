#pragma once

#include "cli/command_line.h"
#include "cli/ending.h"

namespace vellumo {

/// Writes the project of an input as a workbook of form tools to the target, as Deliver does. Tells
/// what the workbook does not have; where a question's own text or name became another one, nothing
/// is written but with --lossy.
Ending ExportFormSheet(const QString &input, const QString &target, const CommandLine &line,
                       const Console &console);

} // namespace vellumo
