#include "platform/descriptor_supply.h"

#ifndef _WIN32
#include "platform/descriptor.h"

#include <vector>

#include <fcntl.h>
#endif

namespace vellumo {

#ifdef _WIN32

bool DescriptorsAreLeft(int)
{
    return true;
}

#else

bool DescriptorsAreLeft(int count)
{
    std::vector<Descriptor> opened;
    for (int i = 0; i < count; ++i) {
        opened.emplace_back(open("/", O_RDONLY | O_CLOEXEC));
        if (!opened.back())
            return false;
    }
    return true;
}

#endif

} // namespace vellumo
