#pragma once

#include "palmtools/pilrc/script_reader.h"

#include <cstdint>

namespace palmtools {

// Numbers of a script lie between -0xFFFFFFFF and 0xFFFFFFFF. What goes beyond, and a division by
// zero, is a ScriptError at the line of the last word read.

/// The number, which must lie within the bounds.
std::int64_t CheckedNumber(std::int64_t number, const ScriptReader &words);

/// An operator of a script and what it makes of two numbers that lie within the bounds.
struct Operator {
    char sign;
    std::int64_t (*apply)(std::int64_t left, std::int64_t right, const ScriptReader &words);
};

/// Takes the next word if it is the sign of an operator; nothing if it is none.
const Operator *TakeOperator(ScriptReader &words);

} // namespace palmtools
