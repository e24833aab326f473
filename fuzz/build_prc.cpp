// A resource file: it becomes a database or is refused with a reason, and the database has the same
// resources in its order.

#include "fuzz/require.h"
#include "palmtools/build_prc/database_builder.h"

#include <algorithm>

using namespace palmtools;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto resources = DecodeDatabase({reinterpret_cast<const char *>(data), size});
    if (!resources) {
        Require(!resources.error().text.empty(), "a refusal has its reason");
        return 0;
    }
    const auto sorted = Sorted(*resources);
    const auto header =
        HeaderOf({.name = "name", .type = "kelp", .creator = "Wmpt", .hidden = true}, 0);
    Require(bool(header), "the header is sound");
    if (!sorted)
        return 0;
    const auto database = EncodeDatabase(*header, *sorted);
    if (!database)
        return 0;
    const auto read = DecodeDatabase(*database);
    Require(read && read->size() == resources->size(), "the database has all resources");
    Require(std::ranges::is_sorted(
                *read, {}, [](const ResourceView &one) { return KeyOf(one.type, one.number); }),
            "they are in order");
    for (std::size_t i = 0; i < read->size(); ++i)
        Require((*read)[i].bytes == (*sorted)[i].bytes, "they are what they were");
    return 0;
}
