#pragma once

#include "platform/result.h"

namespace vellumo {

/// Whether the words of a command line are characters in the encoding of this system. One that is
/// not would come out as another name, and so as another file; the error shows its bytes.
Outcome CheckArguments(int argc, const char *const argv[]);

} // namespace vellumo
