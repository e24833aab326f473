#pragma once

#include "palmtools/common/options.h"

#include <ostream>
#include <string_view>

namespace palmtools {

/// What a tool tells about itself; usage and help are whole lines.
struct ToolTexts {
    std::string_view name, usage, help;
};

/// Writes the help or the version if that is wished for, and tells whether it was.
bool AnswerWish(Wish wish, const ToolTexts &texts, std::ostream &out);

} // namespace palmtools
