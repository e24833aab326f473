#pragma once

#include "palmtools/build_prc/database_builder.h"
#include "palmtools/common/options.h"
#include "palmtools/common/result.h"

#include <string>
#include <vector>

namespace palmtools {

/// What the command line asks for, in either way of calling; nothing is judged yet but its form.
struct BuildPrcCall {
    Wish wish = Wish::work;
    std::string output = {};
    DatabaseIdentity identity = {};
    std::string input = {};
    bool warnsAboutHeader = true;
};

/// Reads the arguments that follow the name of the program.
Result<BuildPrcCall> ReadBuildPrcCall(const std::vector<std::string> &arguments);

} // namespace palmtools
