#include "palmtools/pilrc/object_place.h"

#include "palmtools/pilrc/font_widths.h"

#include <algorithm>

namespace palmtools {
namespace {

constexpr std::int64_t indicatorWidth = 9;
constexpr std::int64_t indicatorHeight = 10;

// A list has lines of this height, whatever its font.
constexpr std::int64_t lineHeight = 11;
constexpr std::int64_t mostLines = 14;
constexpr std::int64_t greatestHeight = 160; ///< the screen's

/// Pixels that an open width has beside the text.
std::int64_t MarginOf(ObjectKind kind)
{
    switch (kind) {
    case ObjectKind::button:
        return 12;
    case ObjectKind::checkBox:
    case ObjectKind::popupTrigger:
        return 18;
    case ObjectKind::selectorTrigger:
    case ObjectKind::list:
        return 6;
    default:
        return 0;
    }
}

std::int64_t WidestText(const FormObject &object)
{
    std::int64_t widest = 0;
    for (const std::string_view text : object.texts)
        widest = std::max(widest, TextWidth(text, object.font));
    return widest;
}

/// The height that is told gives way to VISIBLEITEMS, and 0 stands for all items.
std::int64_t ListHeight(const FormObject &list, std::int64_t told)
{
    if (list.visibleItems)
        return std::min(lineHeight * *list.visibleItems, greatestHeight);
    if (told == 0) {
        const auto items = static_cast<std::int64_t>(list.texts.size());
        return lineHeight * std::min(items, mostLines);
    }
    return told;
}

} // namespace

Rectangle SettledPlace(const Place &place, const FormObject &object)
{
    if (object.kind == ObjectKind::graffitiIndicator)
        return {place.x, place.y, indicatorWidth, indicatorHeight};
    const std::int64_t w = place.w ? *place.w : WidestText(object) + MarginOf(object.kind);
    const std::int64_t h = place.h ? *place.h : FontHeight(object.font) + 1;
    return {place.x, place.y, w, object.kind == ObjectKind::list ? ListHeight(object, h) : h};
}

} // namespace palmtools
