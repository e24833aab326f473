#include "palmtools/diagnostics.h"

namespace palmtools {

std::string MessageOf(const Diagnostic &diagnostic, std::string_view path, MessageStyle style)
{
    const std::string kind = diagnostic.severity == Severity::error ? "error" : "warning";
    const std::string line = std::to_string(diagnostic.line);
    const std::string place = style == MessageStyle::gnu ? ":" + line + ": " + kind + ": "
                                                         : "(" + line + "): " + kind + " : ";
    return std::string(path) + place + diagnostic.text + "\n";
}

std::string Shown(std::string_view bytes)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string shown;
    for (const char c : bytes) {
        const auto code = static_cast<unsigned char>(c);
        if (code >= 0x20 && code != 0x7F) {
            shown += c;
        } else {
            shown += "\\x";
            shown += digits[code >> 4];
            shown += digits[code & 0xF];
        }
    }
    return shown;
}

} // namespace palmtools
