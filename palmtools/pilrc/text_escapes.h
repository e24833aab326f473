#pragma once

#include <string>
#include <string_view>

namespace palmtools {

/// Appends the bytes that a text of a script stands for.
/// Written is what lies between its quotes; it must not end inside of a backslash pair.
void AppendUnescaped(std::string_view written, std::string &text);

} // namespace palmtools
