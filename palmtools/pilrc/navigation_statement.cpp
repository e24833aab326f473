#include "palmtools/pilrc/statements.h"

#include <optional>
#include <utility>

namespace palmtools {
namespace {

constexpr int formatVersion = 1;
constexpr int headerSize = 20;
constexpr int itemSize = 8;

struct NavigationHeader {
    std::optional<std::int64_t> initialState = {};
    std::int64_t initialObject = 0;
};

NavigationHeader ReadHeader(ArgumentReader &arguments)
{
    ScriptReader &words = arguments.words();
    NavigationHeader header;
    for (;;) {
        if (words.TakeName("INITIALSTATE"))
            header.initialState = arguments.Field(32);
        else if (words.TakeName("INITIALOBJECTID"))
            header.initialObject = arguments.Field(16);
        else
            break;
    }
    words.ExpectName("begin");
    if (!header.initialState)
        words.Fail("INITIALSTATE is missing");
    return header;
}

void AppendItem(Bytes &bytes, ArgumentReader &arguments)
{
    ScriptReader &words = arguments.words();
    const std::uint16_t number = arguments.Id();
    std::int64_t above = 0, below = 0;
    for (;;) {
        if (words.TakeName("ABOVE"))
            above = arguments.Field(16);
        else if (words.TakeName("BELOW"))
            below = arguments.Field(16);
        else
            break;
    }
    AppendBigEndian16(bytes, number);
    AppendBigEndian16(bytes, 0);
    AppendBigEndian16(bytes, above);
    AppendBigEndian16(bytes, below);
}

} // namespace

void ReadNavigation(ArgumentReader &arguments, ResourceList &resources)
{
    const std::uint16_t number = arguments.Id();
    const NavigationHeader header = ReadHeader(arguments);
    Bytes items;
    do
        AppendItem(items, arguments);
    while (!arguments.words().TakeName("end"));

    Bytes bytes;
    AppendBigEndian16(bytes, formatVersion);
    AppendBigEndian16(bytes, static_cast<std::int64_t>(items.size() / itemSize));
    AppendBigEndian16(bytes, headerSize);
    AppendBigEndian16(bytes, itemSize);
    AppendBigEndian32(bytes, *header.initialState);
    AppendBigEndian16(bytes, header.initialObject);
    AppendZeros(bytes, 6);
    bytes += items;
    resources.Add(arguments.words(), {FourBytesOf("fnav"), number, std::move(bytes)});
}

} // namespace palmtools
