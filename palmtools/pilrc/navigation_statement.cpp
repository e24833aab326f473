#include "palmtools/pilrc/navigation_statement.h"

#include "palmtools/common/record.h"
#include "palmtools/pilrc/resource_types.h"

#include <optional>
#include <utility>

namespace palmtools {
namespace {

// The layout is that of docs/palm-formats.md, "Navigations".

constexpr std::size_t versionAt = 0;
constexpr std::size_t itemCountAt = 2;
constexpr std::size_t headerSizeAt = 4;
constexpr std::size_t itemSizeAt = 6;
constexpr std::size_t initialStateAt = 8;
constexpr std::size_t initialObjectAt = 12;
constexpr std::size_t navigationHeaderSize = 20;

constexpr std::size_t itemNumberAt = 0;
constexpr std::size_t itemAboveAt = 4;
constexpr std::size_t itemBelowAt = 6;
constexpr std::size_t itemSize = 8;

constexpr std::size_t mostNavigationItems = 65535; ///< that the header can count
constexpr int formatVersion = 1;

struct NavigationHeader {
    std::int64_t initialState = 0, initialObject = 0;
};

NavigationHeader ReadNavigationHeader(ArgumentReader &arguments)
{
    ScriptReader &words = arguments.words();
    std::optional<std::int64_t> initialState;
    std::int64_t initialObject = 0;
    for (;;) {
        if (words.TakeName("INITIALSTATE"))
            initialState = arguments.Field(32);
        else if (words.TakeName("INITIALOBJECTID"))
            initialObject = arguments.Field(16);
        else
            break;
    }
    words.ExpectName("begin");
    if (!initialState)
        words.Fail("INITIALSTATE is missing");
    return {*initialState, initialObject};
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
    Record item(bytes, itemSize);
    item.Put16(itemNumberAt, number);
    item.Put16(itemAboveAt, above);
    item.Put16(itemBelowAt, below);
}

void AppendHeader(Bytes &bytes, const NavigationHeader &header, std::size_t items)
{
    Record record(bytes, navigationHeaderSize);
    record.Put16(versionAt, formatVersion);
    record.Put16(itemCountAt, static_cast<std::int64_t>(items));
    record.Put16(headerSizeAt, navigationHeaderSize);
    record.Put16(itemSizeAt, itemSize);
    record.Put32(initialStateAt, header.initialState);
    record.Put16(initialObjectAt, header.initialObject);
}

} // namespace

void ReadNavigation(ArgumentReader &arguments, ResourceList &resources)
{
    const std::uint16_t number = arguments.Id();
    const NavigationHeader header = ReadNavigationHeader(arguments);
    Bytes items;
    do {
        if (items.size() == itemSize * mostNavigationItems)
            arguments.words().Fail("the navigation has more than 65535 items");
        AppendItem(items, arguments);
    } while (!arguments.words().TakeName("end"));

    Bytes bytes;
    AppendHeader(bytes, header, items.size() / itemSize);
    bytes += items;
    resources.Add(arguments.words(), {navigationType, number, std::move(bytes)});
}

} // namespace palmtools
