#pragma once

#include "palmtools/bytes.h"
#include "palmtools/script_reader.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace palmtools {

/// The four bytes of a type or creator, the first one highest, so that they order as bytes do.
using FourBytes = std::uint32_t;

/// The first four bytes of a text, filled up with zero bytes.
FourBytes FourBytesOf(std::string_view text);

/// The bytes for a message, without the zero bytes at their end.
std::string ShownType(FourBytes type);

struct Resource {
    FourBytes type;
    std::uint16_t number;
    Bytes bytes;
};

constexpr std::uint64_t largestResource = 65535;

/// The resources of a script, in its order.
class ResourceList
{
public:
    /// Fails or warns about a resource that is there already or too large.
    void Admit(ScriptReader &words, FourBytes type, std::uint16_t number, std::uint64_t size);

    /// Admits the resource and keeps it.
    void Add(ScriptReader &words, Resource resource);

    /// Keeps a resource that was admitted.
    void Keep(Resource resource);

    std::vector<Resource> TakeAll() { return std::move(m_resources); }

private:
    std::vector<Resource> m_resources;
    std::unordered_set<std::uint64_t> m_known;
};

} // namespace palmtools
