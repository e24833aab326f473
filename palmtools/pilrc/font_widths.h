#pragma once

#include <cstdint>
#include <string_view>

namespace palmtools {

/// Whether the measures of this font of the handheld are known: 0, 1 and 3.
bool FontIsKnown(std::int64_t number);

// The font must be known; all measures are pixels.

int FontHeight(std::int64_t number);
std::int64_t TextWidth(std::string_view text, std::int64_t number);

} // namespace palmtools
