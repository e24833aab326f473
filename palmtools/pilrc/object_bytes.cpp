#include "palmtools/pilrc/object_bytes.h"

#include <cstddef>

namespace palmtools {
namespace {

struct Layout {
    ObjectKind kind;
    std::uint8_t directoryKind;
    std::uint8_t fixedSize; ///< of the part in front of texts, columns and rows
    void (*append)(Bytes &bytes, const FormObject &object);
};

constexpr std::size_t listItemSize = 4;
constexpr std::size_t columnSize = 18;
constexpr std::size_t rowSize = 12;
constexpr std::size_t cellSize = 8;
constexpr int rowHeight = 11;

std::size_t ColumnCount(const FormObject &object)
{
    return static_cast<std::size_t>(object.columns & 0xFFFF);
}

std::size_t RowCount(const FormObject &object)
{
    return static_cast<std::size_t>(object.rows & 0xFFFF);
}

int Flag(bool isSet, int bits)
{
    return isSet ? bits : 0;
}

void AppendTitle(Bytes &bytes, const FormObject &object)
{
    AppendZeros(bytes, 12);
    AppendZeroEnded(bytes, object.texts.front());
}

void AppendLabel(Bytes &bytes, const FormObject &object)
{
    AppendBigEndian16(bytes, object.number);
    AppendBigEndian16(bytes, object.place.x);
    AppendBigEndian16(bytes, object.place.y);
    AppendBigEndian16(bytes, Flag(object.usable, 0x8000));
    AppendByte(bytes, object.font);
    AppendZeros(bytes, 5);
    AppendZeroEnded(bytes, object.texts.front());
}

void AppendInputField(Bytes &bytes, const FormObject &object)
{
    constexpr int always = 0x0200;
    AppendBigEndian16(bytes, object.number);
    AppendRectangle(bytes, object.place);
    AppendBigEndian16(bytes, always | Flag(object.usable, 0x8000) | Flag(object.editable, 0x2000) |
                                 Flag(object.singleLine, 0x1000) | Flag(object.underlined, 0x0040) |
                                 Flag(object.numeric, 0x0002));
    AppendZeros(bytes, 16);
    AppendBigEndian16(bytes, object.maxChars);
    AppendZeros(bytes, 8);
    AppendByte(bytes, object.font);
    AppendByte(bytes, 0);
}

void AppendControl(Bytes &bytes, const FormObject &object, int style, bool frame)
{
    constexpr int enabled = 0x4000;
    AppendBigEndian16(bytes, object.number);
    AppendRectangle(bytes, object.place);
    AppendZeros(bytes, 4);
    AppendBigEndian16(bytes, enabled | Flag(object.usable, 0x8000) |
                                 Flag(object.leftAnchor, 0x0800) | Flag(frame, 0x0100));
    AppendByte(bytes, style);
    AppendByte(bytes, object.font);
    AppendByte(bytes, object.group);
    AppendByte(bytes, 0);
    AppendZeroEnded(bytes, object.texts.front());
}

void AppendButton(Bytes &bytes, const FormObject &object)
{
    AppendControl(bytes, object, 0, object.frame);
}

void AppendCheckBox(Bytes &bytes, const FormObject &object)
{
    AppendControl(bytes, object, 2, false);
}

void AppendPopupTrigger(Bytes &bytes, const FormObject &object)
{
    AppendControl(bytes, object, 3, false);
}

void AppendSelectorTrigger(Bytes &bytes, const FormObject &object)
{
    AppendControl(bytes, object, 4, true);
}

void AppendList(Bytes &bytes, const FormObject &object)
{
    constexpr int enabled = 0x4000;
    AppendBigEndian16(bytes, object.number);
    AppendRectangle(bytes, object.place);
    AppendBigEndian16(bytes, enabled | Flag(object.usable, 0x8000));
    AppendZeros(bytes, 4);
    AppendBigEndian16(bytes, static_cast<std::int64_t>(object.texts.size()));
    AppendZeros(bytes, 4);
    AppendByte(bytes, object.font);
    AppendZeros(bytes, 9);
    AppendZeros(bytes, listItemSize * object.texts.size());
    for (const std::string_view item : object.texts)
        AppendZeroEnded(bytes, item);
}

void AppendPopupList(Bytes &bytes, const FormObject &object)
{
    AppendBigEndian16(bytes, object.number);
    AppendBigEndian16(bytes, object.listNumber);
}

void AppendIndicator(Bytes &bytes, const FormObject &object)
{
    AppendBigEndian16(bytes, object.place.x);
    AppendBigEndian16(bytes, object.place.y);
}

void AppendGadget(Bytes &bytes, const FormObject &object)
{
    constexpr int always = 0x4000;
    AppendBigEndian16(bytes, object.number);
    AppendBigEndian16(bytes, always | Flag(object.usable, 0x8000));
    AppendRectangle(bytes, object.place);
    AppendZeros(bytes, 8);
}

void AppendColumn(Bytes &bytes, std::int64_t width)
{
    AppendBigEndian16(bytes, width);
    AppendBigEndian16(bytes, 0);
    AppendBigEndian16(bytes, 1);
    AppendZeros(bytes, 12);
}

void AppendRow(Bytes &bytes)
{
    AppendBigEndian16(bytes, 0);
    AppendBigEndian16(bytes, rowHeight);
    AppendZeros(bytes, 4);
    AppendByte(bytes, 1);
    AppendByte(bytes, 1);
    AppendBigEndian16(bytes, 0);
}

void AppendTable(Bytes &bytes, const FormObject &object)
{
    AppendBigEndian16(bytes, object.number);
    AppendRectangle(bytes, object.place);
    AppendBigEndian16(bytes, Flag(object.editable, 0x4000));
    AppendBigEndian16(bytes, object.columns);
    AppendBigEndian16(bytes, object.rows);
    AppendZeros(bytes, 58);
    for (std::size_t column = 0; column < ColumnCount(object); ++column) {
        const bool told = column < object.columnWidths.size();
        AppendColumn(bytes, told ? object.columnWidths[column] : 0);
    }
    for (std::size_t row = 0; row < RowCount(object); ++row)
        AppendRow(bytes);
    AppendZeros(bytes, cellSize * RowCount(object) * ColumnCount(object));
}

void AppendScrollBar(Bytes &bytes, const FormObject &object)
{
    AppendRectangle(bytes, object.place);
    AppendBigEndian16(bytes, object.number);
    AppendByte(bytes, Flag(object.usable, 0x80));
    AppendByte(bytes, 0);
    AppendBigEndian16(bytes, object.value);
    AppendBigEndian16(bytes, object.min);
    AppendBigEndian16(bytes, object.max);
    AppendBigEndian16(bytes, object.pageSize);
    AppendZeros(bytes, 4);
}

constexpr Layout layouts[] = {
    {ObjectKind::title, 9, 12, AppendTitle},
    {ObjectKind::label, 8, 14, AppendLabel},
    {ObjectKind::field, 0, 40, AppendInputField},
    {ObjectKind::button, 1, 20, AppendButton},
    {ObjectKind::checkBox, 1, 20, AppendCheckBox},
    {ObjectKind::selectorTrigger, 1, 20, AppendSelectorTrigger},
    {ObjectKind::popupTrigger, 1, 20, AppendPopupTrigger},
    {ObjectKind::list, 2, 32, AppendList},
    {ObjectKind::popupList, 10, 4, AppendPopupList},
    {ObjectKind::graffitiIndicator, 11, 4, AppendIndicator},
    {ObjectKind::gadget, 12, 20, AppendGadget},
    {ObjectKind::table, 3, 74, AppendTable},
    {ObjectKind::scrollBar, 13, 24, AppendScrollBar},
};

const Layout &LayoutOf(ObjectKind kind)
{
    const Layout *layout = layouts;
    while (layout->kind != kind)
        ++layout;
    return *layout;
}

} // namespace

std::uint8_t DirectoryKind(ObjectKind kind)
{
    return LayoutOf(kind).directoryKind;
}

std::uint64_t ObjectSize(const FormObject &object)
{
    std::uint64_t size = LayoutOf(object.kind).fixedSize;
    for (const std::string_view text : object.texts)
        size += text.size() + 1;
    if (object.kind == ObjectKind::list)
        size += listItemSize * object.texts.size();
    if (object.kind == ObjectKind::table) {
        const std::uint64_t rows = RowCount(object), columns = ColumnCount(object);
        size += columnSize * columns + rowSize * rows + cellSize * rows * columns;
    }
    return size + size % 2;
}

void AppendObject(Bytes &bytes, const FormObject &object)
{
    LayoutOf(object.kind).append(bytes, object);
    PadToEven(bytes);
}

void AppendRectangle(Bytes &bytes, const Rectangle &rectangle)
{
    AppendBigEndian16(bytes, rectangle.x);
    AppendBigEndian16(bytes, rectangle.y);
    AppendBigEndian16(bytes, rectangle.w);
    AppendBigEndian16(bytes, rectangle.h);
}

} // namespace palmtools
