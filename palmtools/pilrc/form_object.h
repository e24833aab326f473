#pragma once

#include "palmtools/pilrc/rectangle.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace palmtools {

enum class ObjectKind {
    title,
    label,
    field,
    button,
    checkBox,
    selectorTrigger,
    popupTrigger,
    list,
    popupList,
    graffitiIndicator,
    gadget,
    table,
    scrollBar,
};

/// An object of a form as the script tells it, its place settled. Texts belong to the
/// ArgumentReader.
struct FormObject {
    ObjectKind kind;
    std::uint16_t number = 0; ///< of a popup list: that of its trigger
    Rectangle place = {};
    std::vector<std::string_view> texts = {}; ///< one, or the items of a list

    bool usable = true;
    bool leftAnchor = true;
    bool frame = true;
    bool editable = true;
    bool singleLine = true;
    bool underlined = false;
    bool numeric = false;

    std::int64_t font = 0;
    std::int64_t group = 0;
    std::int64_t maxChars = 0;
    std::optional<std::int64_t> visibleItems = {};
    std::uint16_t rows = 0;
    std::uint16_t columns = 0;
    std::vector<std::int64_t> columnWidths = {};
    std::int64_t value = 0;
    std::int64_t min = 0;
    std::int64_t max = 0;
    std::int64_t pageSize = 0;
    std::int64_t listNumber = 0; ///< of a popup list
};

} // namespace palmtools
