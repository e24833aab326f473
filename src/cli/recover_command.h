#pragma once

#include "cli/command_line.h"
#include "cli/console.h"

namespace vellumo {

/// Writes the project that a database holds to the output file or to standard output. In what the
/// database would be another one, created again, is complained of; the project is written all the
/// same. Where nothing tells against it, the database is created again to see.
Exit RecoverDatabase(const CommandLine &line, const Console &console);

} // namespace vellumo
