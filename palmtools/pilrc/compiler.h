#pragma once

#include "palmtools/common/resource.h"
#include "palmtools/pilrc/diagnostics.h"

#include <string_view>
#include <vector>

namespace palmtools {

/// What became of a script. Where it has an error there are no resources, and the error is the
/// last of the diagnostics, which stand in the order in which they arose.
struct Compilation {
    bool failed = false;
    std::vector<Resource> resources = {};
    std::vector<Diagnostic> diagnostics = {};
};

Compilation CompileScript(std::string_view script);

} // namespace palmtools
