#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace palmtools {

/// The database builder: reads a resource file and writes a database for the handheld.
/// Takes the arguments after the program's name and gives the exit status, 0 or 1.
int RunBuildPrc(const std::vector<std::string> &arguments, std::ostream &out, std::ostream &err);

} // namespace palmtools
