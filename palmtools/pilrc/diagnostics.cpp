#include "palmtools/pilrc/diagnostics.h"

namespace palmtools {

void Warnings::Add(int line, std::string_view text)
{
    if (m_kept.size() < most)
        m_kept.push_back({Severity::warning, line, std::string(text)});
    else
        ++m_more;
}

std::string MessageOf(const Diagnostic &diagnostic, std::string_view path, MessageStyle style)
{
    const std::string kind = diagnostic.severity == Severity::error ? "error" : "warning";
    const std::string line = std::to_string(diagnostic.line);
    const std::string place = style == MessageStyle::gnu ? ":" + line + ": " + kind + ": "
                                                         : "(" + line + "): " + kind + " : ";
    return std::string(path) + place + diagnostic.text + "\n";
}

std::string MessageOfMore(std::size_t warnings)
{
    if (warnings == 0)
        return "";
    return "pilrc: " + std::to_string(warnings) +
           (warnings == 1 ? " more warning is" : " more warnings are") + " not shown\n";
}

} // namespace palmtools
