#pragma once

#include "cli/command_line.h"
#include "platform/tool_runner.h"

namespace vellumo {

/// Whether the line wants programs to compile or to build in place of this process.
bool NamesPrograms(const CommandLine &line);

/// Runs a tool for no longer than the line allows: the program that the line names for it, which is
/// looked for along PATH where it has no folder. The other tool, if one alone is named, is looked
/// for as the designer does. A program that cannot be started is named in the reason.
ToolRun RunNamed(ToolCall call, const CommandLine &line);

} // namespace vellumo
