#pragma once

#include "palmtools/common/result.h"

#include <string>
#include <string_view>

namespace palmtools {

/// A database name as the handheld reads it, in windows-1252.
///
/// A name that is UTF-8 is converted, any other is taken as it is. Fails on a character that the
/// handheld lacks and above 31 bytes.
Result<std::string> DatabaseNameOf(std::string_view given);

} // namespace palmtools
