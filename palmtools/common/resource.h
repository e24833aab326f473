#pragma once

#include "palmtools/common/bytes.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace palmtools {

/// The four bytes of a type or creator, the first one highest, so that they order as bytes do.
using FourBytes = std::uint32_t;

/// The first four bytes of a text, filled up with zero bytes.
constexpr FourBytes FourBytesOf(std::string_view text)
{
    FourBytes bytes = 0;
    for (std::size_t i = 0; i < sizeof bytes; ++i)
        bytes = bytes << 8 | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0u);
    return bytes;
}

/// The bytes for a message, without the zero bytes at their end.
std::string ShownType(FourBytes type);

/// Tells resources apart and orders them as a database does: by type, then by number.
constexpr std::uint64_t KeyOf(FourBytes type, std::uint16_t number)
{
    return std::uint64_t{type} << 16 | number;
}

/// A resource of a database; no two of one database have the same type and number.
struct Resource {
    FourBytes type;
    std::uint16_t number;
    Bytes bytes;
};

/// A resource that lies in a buffer of someone else.
struct ResourceView {
    FourBytes type;
    std::uint16_t number;
    std::string_view bytes;
};

/// The views of resources, which must outlive them.
std::vector<ResourceView> ViewsOf(const std::vector<Resource> &resources);

} // namespace palmtools
