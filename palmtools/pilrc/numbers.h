#pragma once

#include "palmtools/pilrc/rectangle.h"
#include "palmtools/pilrc/script_reader.h"

#include <cstdint>

namespace palmtools {

/// Reads a number argument: numbers, words such as PREVLEFT, parentheses and operators.
///
/// Operators apply from left to right, a leading minus to everything that follows it. Takes the
/// words up to the first that does not belong to it. Throws ScriptError where no number stands, at
/// a division by zero, and when a result lies outside of -0xFFFFFFFF to 0xFFFFFFFF.
std::int64_t ReadNumber(ScriptReader &words, const Rectangle &previous);

} // namespace palmtools
