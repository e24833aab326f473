#pragma once

#include <string>
#include <string_view>

namespace palmtools {

/// The bytes with control characters written out, so that a message stays on one line.
std::string Shown(std::string_view bytes);

} // namespace palmtools
