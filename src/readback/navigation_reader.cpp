#include "readback/navigation_reader.h"

#include "readback/record_layout.h"

namespace vellumo {
namespace {

/// The header of a navigation, which its items follow.
struct NavigationRecord : Navigation {
    quint32 itemCount = 0;
};

constexpr quint32 navigationVersion = 1;
constexpr qsizetype headerSize = 20;
constexpr qsizetype itemSize = 8;

// A navigation tells the sizes of its own records; no other than these are known.
constexpr StoredNumber<NavigationRecord> headerNumbers[] = {
    {0, 2, nullptr, navigationVersion},
    {2, 2, &NavigationRecord::itemCount},
    {4, 2, nullptr, headerSize},
    {6, 2, nullptr, itemSize},
    {8, 4, &NavigationRecord::initialState},
    {12, 2, &NavigationRecord::initialObject},
};
constexpr RecordLayout<NavigationRecord> headerLayout(headerSize, headerNumbers);

constexpr StoredNumber<NavigationItem> itemNumbers[] = {
    {0, 2, &NavigationItem::number},
    {4, 2, &NavigationItem::above},
    {6, 2, &NavigationItem::below},
};
constexpr RecordLayout<NavigationItem> itemLayout(itemSize, itemNumbers);

} // namespace

Result<Navigation> ReadNavigation(const QByteArray &resource)
{
    ByteReader reader(resource);
    NavigationRecord navigation;
    headerLayout.Take(reader, navigation);
    for (quint32 i = 0; i < navigation.itemCount && !reader.Failed(); ++i)
        itemLayout.Take(reader, navigation.items.emplaceBack());
    reader.PassEnd();
    if (reader.Failed())
        return Error{reader.Fault()};
    return navigation;
}

} // namespace vellumo
