#include "palmtools/pilrc/diagnostics.h"

namespace palmtools {

std::string MessageOf(const Diagnostic &diagnostic, std::string_view path, MessageStyle style)
{
    const std::string kind = diagnostic.severity == Severity::error ? "error" : "warning";
    const std::string line = std::to_string(diagnostic.line);
    const std::string place = style == MessageStyle::gnu ? ":" + line + ": " + kind + ": "
                                                         : "(" + line + "): " + kind + " : ";
    return std::string(path) + place + diagnostic.text + "\n";
}

} // namespace palmtools
