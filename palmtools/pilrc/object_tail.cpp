#include "palmtools/pilrc/object_tail.h"

#include "palmtools/common/record.h"

namespace palmtools {
namespace {

// The layouts are those of docs/palm-formats.md, "Lists and tables".

constexpr std::size_t itemPointerSize = 4;

constexpr std::size_t columnWidthAt = 0;
constexpr std::size_t columnSpacingAt = 4;
constexpr std::size_t columnSize = 18;
constexpr int columnSpacing = 1;

constexpr std::size_t rowHeightAt = 2;
constexpr std::size_t rowUsableAt = 8;
constexpr std::size_t rowSelectableAt = 9;
constexpr std::size_t rowSize = 12;
constexpr int rowHeight = 11;

constexpr std::size_t cellSize = 8;

std::uint64_t NoSize(const FormObject &)
{
    return 0;
}

void AppendNothing(Bytes &, const FormObject &) {}

std::uint64_t TextsSize(const FormObject &object)
{
    std::uint64_t size = 0;
    for (const std::string_view text : object.texts)
        size += text.size() + 1;
    return size;
}

void AppendTexts(Bytes &bytes, const FormObject &object)
{
    for (const std::string_view text : object.texts)
        AppendZeroEnded(bytes, text);
}

std::uint64_t ItemsSize(const FormObject &object)
{
    return itemPointerSize * object.texts.size() + TextsSize(object);
}

/// The handheld puts a pointer to each item in front of them all.
void AppendItems(Bytes &bytes, const FormObject &object)
{
    AppendZeros(bytes, itemPointerSize * object.texts.size());
    AppendTexts(bytes, object);
}

// In 64 bits: the cells of the largest table are more than 32 bits can count.
std::uint64_t CellsSize(const FormObject &object)
{
    const std::uint64_t rows = object.rows, columns = object.columns;
    return columnSize * columns + rowSize * rows + cellSize * rows * columns;
}

void AppendColumn(Bytes &bytes, std::int64_t width)
{
    Record column(bytes, columnSize);
    column.Put16(columnWidthAt, width);
    column.Put16(columnSpacingAt, columnSpacing);
}

void AppendRow(Bytes &bytes)
{
    Record row(bytes, rowSize);
    row.Put16(rowHeightAt, rowHeight);
    row.Put8(rowUsableAt, 1);
    row.Put8(rowSelectableAt, 1);
}

/// Widths may be told of fewer columns than the table comes to have, and of more.
void AppendCells(Bytes &bytes, const FormObject &object)
{
    for (std::size_t column = 0; column < object.columns; ++column) {
        const bool isTold = column < object.columnWidths.size();
        AppendColumn(bytes, isTold ? object.columnWidths[column] : 0);
    }
    for (std::size_t row = 0; row < object.rows; ++row)
        AppendRow(bytes);
    AppendZeros(bytes, cellSize * object.rows * object.columns);
}

} // namespace

const ObjectTail noTail = {NoSize, AppendNothing};
const ObjectTail textTail = {TextsSize, AppendTexts};
const ObjectTail itemsTail = {ItemsSize, AppendItems};
const ObjectTail cellsTail = {CellsSize, AppendCells};

} // namespace palmtools
