#pragma once

#include "palmtools/common/options.h"
#include "palmtools/common/result.h"

#include <string>
#include <vector>

namespace palmtools {

/// What the command line asks for, in either way of calling; nothing is judged yet but its form.
struct BuildPrcCall {
    Wish wish = Wish::work;
    std::string output = {};
    std::string name = {};
    std::string type = "appl";
    std::string creator = {};
    std::string input = {};
    bool hidden = false;
    bool warnsAboutHeader = true;
};

/// Reads the arguments that follow the name of the program.
Result<BuildPrcCall> ReadBuildPrcCall(const std::vector<std::string> &arguments);

} // namespace palmtools
