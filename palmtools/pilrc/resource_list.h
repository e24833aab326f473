#pragma once

#include "palmtools/common/resource.h"
#include "palmtools/pilrc/script_reader.h"

#include <cstdint>
#include <unordered_set>
#include <utility>
#include <vector>

namespace palmtools {

/// Bytes that a resource can have: it lives in one piece of the handheld's memory.
constexpr std::uint64_t largestResource = 65535;

/// The resources of a script, in its order.
class ResourceList
{
public:
    /// Fails or warns about a resource that is there already or too large, by itself or together
    /// with those that were admitted before.
    void Admit(ScriptReader &words, FourBytes type, std::uint16_t number, std::uint64_t size);

    /// Admits the resource and keeps it.
    void Add(ScriptReader &words, Resource resource);

    /// Keeps a resource that was admitted.
    void Keep(Resource resource);

    std::vector<Resource> TakeAll() { return std::move(m_resources); }

private:
    std::vector<Resource> m_resources;
    std::unordered_set<std::uint64_t> m_known;
    std::uint64_t m_size = 0; ///< bytes of all that were admitted
};

} // namespace palmtools
