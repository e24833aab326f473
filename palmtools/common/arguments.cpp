#include "palmtools/common/arguments.h"

namespace palmtools {

std::filesystem::path PathOf(std::string_view word)
{
    return std::u8string(word.begin(), word.end());
}

} // namespace palmtools
