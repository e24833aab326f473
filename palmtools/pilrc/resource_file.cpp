#include "palmtools/pilrc/resource_file.h"

#include "palmtools/common/database.h"

namespace palmtools {
namespace {

// Not the clock, so that equal scripts give equal files.
constexpr std::uint32_t timeOfAll = 0xADC0BEA0;

} // namespace

Result<Bytes> EncodeResourceFile(const std::string &path, const std::vector<Resource> &resources)
{
    const DatabaseHeader header{.name = path,
                                .time = timeOfAll,
                                .type = FourBytesOf("RESO"),
                                .creator = FourBytesOf("pRES")};
    return EncodeDatabase(header, ViewsOf(resources));
}

} // namespace palmtools
