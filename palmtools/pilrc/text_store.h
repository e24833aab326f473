#pragma once

#include <deque>
#include <string>
#include <string_view>

namespace palmtools {

/// Keeps texts where they do not move. Many short ones take little more than their bytes.
class TextStore
{
public:
    /// The kept copy, which lives as long as this.
    std::string_view Keep(std::string_view text);

private:
    std::deque<std::string> m_blocks; ///< each grows within its capacity only
};

} // namespace palmtools
