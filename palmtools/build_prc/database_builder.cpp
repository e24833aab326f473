#include "palmtools/build_prc/database_builder.h"

#include "palmtools/build_prc/database_name.h"
#include "palmtools/build_prc/palm_time.h"
#include "palmtools/common/shown.h"

#include <algorithm>

namespace palmtools {
namespace {

constexpr std::size_t codeSize = 4; ///< of a type or creator

} // namespace

Result<DatabaseHeader> HeaderOf(const DatabaseIdentity &identity, std::time_t moment)
{
    const std::string &type = identity.type, &creator = identity.creator;
    if (type.size() != codeSize)
        return Error{"the type '" + Shown(type) + "' is not 4 bytes long"};
    if (!creator.empty() && creator.size() != codeSize)
        return Error{"the creator '" + Shown(creator) + "' is not 4 bytes long"};
    const auto name = DatabaseNameOf(identity.name);
    if (!name)
        return name.error();
    return DatabaseHeader{.name = *name,
                          .hidden = identity.hidden,
                          .time = PalmTimeOf(moment),
                          .type = FourBytesOf(type),
                          .creator = FourBytesOf(creator)};
}

Result<std::vector<ResourceView>> Sorted(std::vector<ResourceView> resources)
{
    const auto key = [](const ResourceView &resource) {
        return KeyOf(resource.type, resource.number);
    };
    std::ranges::sort(resources, {}, key);
    const auto twin = std::ranges::adjacent_find(resources, {}, key);
    if (twin != resources.end()) {
        return Error{"resource '" + ShownType(twin->type) + "' " + std::to_string(twin->number) +
                     " is there twice"};
    }
    return resources;
}

} // namespace palmtools
