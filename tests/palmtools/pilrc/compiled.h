#pragma once

#include "palmtools/pilrc/compiler.h"

#include <string>
#include <string_view>

namespace palmtools {

/// The diagnostics of a script, one a line, as "LINE error|warning TEXT".
inline std::string DiagnosticsOf(std::string_view script)
{
    std::string lines;
    for (const Diagnostic &diagnostic : CompileScript(script).diagnostics) {
        lines += std::to_string(diagnostic.line);
        lines += diagnostic.severity == Severity::error ? " error " : " warning ";
        lines += diagnostic.text + "\n";
    }
    return lines;
}

} // namespace palmtools
