#pragma once

#include <cstdint>
#include <ctime>

namespace palmtools {

/// Seconds since the beginning of 1904 on the clock of this place, summer time included.
/// Wraps in February 2040, as it does on the handheld.
std::uint32_t PalmTimeOf(std::time_t moment);

} // namespace palmtools
