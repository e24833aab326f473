#include "readback/navigation_reader.h"

#include "readback/parts.h"

namespace vellumo {
namespace {

constexpr quint32 version = 1;
constexpr quint32 headerSize = 20;
constexpr quint32 itemSize = 8;

constexpr Part<Navigation> headerParts[] = {
    {2, nullptr, headerSize},
    {2, nullptr, itemSize},
    {4, &Navigation::initialState},
    {2, &Navigation::initialObject},
    {6},
};
constexpr Part<NavigationItem> itemParts[] = {
    {2, &NavigationItem::number},
    {2},
    {2, &NavigationItem::above},
    {2, &NavigationItem::below},
};

} // namespace

Result<Navigation> ReadNavigation(const QByteArray &resource)
{
    ByteReader reader(resource);
    Navigation navigation;
    reader.PassNumber(2, version);
    const quint32 count = reader.TakeNumber(2);
    TakeParts<Navigation>(reader, headerParts, navigation);
    for (quint32 i = 0; i < count && !reader.Failed(); ++i)
        TakeParts<NavigationItem>(reader, itemParts, navigation.items.emplaceBack());
    reader.PassEnd();
    if (reader.Failed())
        return Error{reader.Fault()};
    return navigation;
}

} // namespace vellumo
