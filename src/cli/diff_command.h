#pragma once

#include "cli/command_line.h"
#include "cli/console.h"

namespace vellumo {

/// Tells in what a project differs from what it was. Whatever is wrong, the exit is WrongUse, as
/// that of diff is 2. Git takes any exit but Fine for a failure and goes on to no other file: with
/// --git it is Fine, and a project that cannot be read is told of among the differences.
Exit TellDifferences(const CommandLine &line, const Console &console);

} // namespace vellumo
