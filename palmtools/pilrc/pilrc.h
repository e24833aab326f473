#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace palmtools {

/// The resource compiler: reads a script and writes a resource file.
/// Takes the arguments after the program's name and gives the exit status, 0 or 1.
int RunPilrc(const std::vector<std::string> &arguments, std::ostream &out, std::ostream &err);

} // namespace palmtools
