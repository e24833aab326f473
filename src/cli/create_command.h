#pragma once

#include "cli/command_line.h"
#include "cli/console.h"

/// Makes the databases of some projects in the output folder, or in the projects folder, and tells
/// the path of each that was made. Each project is tried; the worst exit is returned. A database
/// takes the place of an earlier one only when it is complete.
Exit CreateDatabases(const CommandLine &line, const Console &console);
