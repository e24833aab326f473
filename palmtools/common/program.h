#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace palmtools {

/// A tool: takes the arguments after the program's name and gives the exit status.
using Tool = int (*)(const std::vector<std::string> &arguments, std::ostream &out,
                     std::ostream &err);

/// Runs a tool as the program that main() is; a file that grows beyond the limit of the process is
/// an error to it then, as a full disk is, and does not end it.
int RunProgram(Tool tool, int argc, char *argv[]);

} // namespace palmtools
