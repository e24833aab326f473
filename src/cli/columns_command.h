#pragma once

#include "cli/command_line.h"
#include "cli/console.h"

namespace vellumo {

/// Tells of each question of each project what its column in the collected data holds.
Exit TellColumns(const CommandLine &line, const Console &console);

} // namespace vellumo
