#include "palmtools/common/shown.h"

namespace palmtools {

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
