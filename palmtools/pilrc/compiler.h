#pragma once

#include "palmtools/common/resource.h"
#include "palmtools/pilrc/diagnostics.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace palmtools {

/// What became of a script; nothing in it refers to the script's bytes.
struct Compilation {
    bool failed = false;
    std::vector<Resource> resources = {};     ///< in the order of the script; none if it failed
    std::vector<Diagnostic> diagnostics = {}; ///< as they arose; the last is the error if it failed
    std::size_t moreWarnings = 0;             ///< than are among the diagnostics
};

/// Compiles a script: its bytes in, resources and diagnostics out, without files or streams.
///
/// Texts are bytes in the code page of the handheld, windows-1252. The first error ends the
/// reading. What comes out goes on to EncodeResourceFile(), or through ViewsOf() to a database.

Compilation CompileScript(std::string_view script);

} // namespace palmtools
