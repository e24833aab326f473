#include "palmtools/pilrc/text_store.h"

#include <algorithm>
#include <cstddef>

namespace palmtools {
namespace {

constexpr std::size_t blockSize = 1 << 16;

std::size_t Room(const std::string &block)
{
    return block.capacity() - block.size();
}

} // namespace

std::string_view TextStore::Keep(std::string_view text)
{
    if (m_blocks.empty() || Room(m_blocks.back()) < text.size())
        m_blocks.emplace_back().reserve(std::max(blockSize, text.size()));
    std::string &block = m_blocks.back();
    const std::size_t begin = block.size();
    block += text;
    return std::string_view(block).substr(begin);
}

} // namespace palmtools
