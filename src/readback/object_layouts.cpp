// docs/palm-formats.md, "The objects of a form" and "Lists and tables", has these tables in words.

#include "readback/object_layouts.h"

#include <algorithm>

namespace vellumo {
namespace {

using Number = StoredNumber<ObjectRecord>;
using Layout = RecordLayout<ObjectRecord>;

constexpr Number fieldNumbers[] = {
    {0, 2, &ObjectRecord::number},    {2, 2, &ObjectRecord::x},      {4, 2, &ObjectRecord::y},
    {6, 2, &ObjectRecord::width},     {8, 2, &ObjectRecord::height}, {10, 2, &ObjectRecord::flags},
    {28, 2, &ObjectRecord::maxChars}, {38, 1, &ObjectRecord::font},
};
constexpr Number controlNumbers[] = {
    {0, 2, &ObjectRecord::number}, {2, 2, &ObjectRecord::x},      {4, 2, &ObjectRecord::y},
    {6, 2, &ObjectRecord::width},  {8, 2, &ObjectRecord::height}, {14, 2, &ObjectRecord::flags},
    {16, 1, &ObjectRecord::style}, {17, 1, &ObjectRecord::font},  {18, 1, &ObjectRecord::group},
};
constexpr Number listNumbers[] = {
    {0, 2, &ObjectRecord::number},   {2, 2, &ObjectRecord::x},      {4, 2, &ObjectRecord::y},
    {6, 2, &ObjectRecord::width},    {8, 2, &ObjectRecord::height}, {10, 2, &ObjectRecord::flags},
    {16, 2, &ObjectRecord::entries}, {22, 1, &ObjectRecord::font},
};
constexpr Number tableNumbers[] = {
    {0, 2, &ObjectRecord::number},   {2, 2, &ObjectRecord::x},      {4, 2, &ObjectRecord::y},
    {6, 2, &ObjectRecord::width},    {8, 2, &ObjectRecord::height}, {10, 2, &ObjectRecord::flags},
    {12, 2, &ObjectRecord::entries}, {14, 2, &ObjectRecord::rows},
};
constexpr Number labelNumbers[] = {
    {0, 2, &ObjectRecord::number}, {2, 2, &ObjectRecord::x},    {4, 2, &ObjectRecord::y},
    {6, 2, &ObjectRecord::flags},  {8, 1, &ObjectRecord::font},
};
constexpr Number popupListNumbers[] = {
    {0, 2, &ObjectRecord::number},
    {2, 2, &ObjectRecord::list},
};
constexpr Number indicatorNumbers[] = {
    {0, 2, &ObjectRecord::x},
    {2, 2, &ObjectRecord::y},
};
constexpr Number gadgetNumbers[] = {
    {0, 2, &ObjectRecord::number}, {2, 2, &ObjectRecord::flags}, {4, 2, &ObjectRecord::x},
    {6, 2, &ObjectRecord::y},      {8, 2, &ObjectRecord::width}, {10, 2, &ObjectRecord::height},
};
constexpr Number scrollBarNumbers[] = {
    {0, 2, &ObjectRecord::x},        {2, 2, &ObjectRecord::y},
    {4, 2, &ObjectRecord::width},    {6, 2, &ObjectRecord::height},
    {8, 2, &ObjectRecord::number},   {10, 1, &ObjectRecord::flags},
    {12, 2, &ObjectRecord::value},   {14, 2, &ObjectRecord::minimum},
    {16, 2, &ObjectRecord::maximum}, {18, 2, &ObjectRecord::pageSize},
};

constexpr struct {
    ObjectKind kind;
    Layout layout;
} layouts[] = {
    {ObjectKind::Field, Layout(40, fieldNumbers)},
    {ObjectKind::Control, Layout(20, controlNumbers)},
    {ObjectKind::List, Layout(32, listNumbers)},
    {ObjectKind::Table, Layout(74, tableNumbers)},
    {ObjectKind::Label, Layout(14, labelNumbers)},
    {ObjectKind::Title, Layout(12, {})},
    {ObjectKind::PopupList, Layout(4, popupListNumbers)},
    {ObjectKind::GraffitiIndicator, Layout(4, indicatorNumbers)},
    {ObjectKind::Gadget, Layout(20, gadgetNumbers)},
    {ObjectKind::ScrollBar, Layout(24, scrollBarNumbers)},
};

constexpr StoredNumber<TableColumn> columnNumbers[] = {
    {0, 2, &TableColumn::width},
    {4, 2, nullptr, 1},
};

constexpr quint32 rowHeight = 11; // of a line in the handheld's standard font
constexpr Number rowNumbers[] = {
    {2, 2, nullptr, rowHeight},
    {8, 1, nullptr, 1},
    {9, 1, nullptr, 1},
};

} // namespace

constexpr RecordLayout<TableColumn> tableColumnLayout(18, columnNumbers);
constexpr RecordLayout<ObjectRecord> tableRowLayout(12, rowNumbers);

const RecordLayout<ObjectRecord> *LayoutOf(ObjectKind kind)
{
    const auto found =
        std::ranges::find_if(layouts, [kind](const auto &known) { return known.kind == kind; });
    return found == std::end(layouts) ? nullptr : &found->layout;
}

} // namespace vellumo
