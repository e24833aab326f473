#include "palmtools/common/resource.h"

#include "palmtools/common/shown.h"

namespace palmtools {

std::string ShownType(FourBytes type)
{
    Bytes bytes;
    AppendBigEndian32(bytes, type);
    bytes.resize(bytes.find_last_not_of('\0') + 1);
    return Shown(bytes);
}

std::vector<ResourceView> ViewsOf(const std::vector<Resource> &resources)
{
    std::vector<ResourceView> views;
    views.reserve(resources.size());
    for (const Resource &resource : resources)
        views.push_back({resource.type, resource.number, resource.bytes});
    return views;
}

} // namespace palmtools
