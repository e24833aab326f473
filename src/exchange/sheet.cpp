#include "exchange/sheet.h"

#include "editing/question_columns.h"
#include "exchange/csv_text.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

bool Has(const QStringList &heading, QuestionColumn column)
{
    return std::ranges::any_of(
        heading, [&](const QString &cell) { return HasName(cell, CaptionOf(column)); });
}

/// As in the clipboard: a row that names the questions and something else about them.
bool IsHeading(const CsvRow &row)
{
    const auto named = std::ranges::count_if(
        questionColumns, [&](QuestionColumn column) { return Has(row.cells, column); });
    return Has(row.cells, QuestionColumn::Text) && named > 1;
}

std::optional<Sheet> SheetOf(const QList<CsvRow> &rows)
{
    const auto heading = std::ranges::find_if(rows, IsHeading);
    if (heading == rows.end())
        return {};
    const qsizetype above = heading - rows.begin();
    Sheet sheet = {rows.first(above), *heading, rows.sliced(above + 1), {}};
    for (qsizetype i = heading->cells.size() - 1; i >= 0; --i)
        sheet.places.insert(heading->cells[i].trimmed().toCaseFolded(), i);
    return sheet;
}

Result<Sheet> Complete(const Sheet &sheet)
{
    for (const auto column :
         {QuestionColumn::Text, QuestionColumn::Type, QuestionColumn::ColumnName})
        if (!Has(sheet.heading.cells, column))
            return Error{u"The heading, row %1, has no column '%2'."_s.arg(
                QString::number(sheet.heading.number), CaptionOf(column))};
    return sheet;
}

bool IsKnown(const QString &caption)
{
    return HasName(caption, idCaption) || HasName(caption, orderCaption) ||
           std::ranges::any_of(questionColumns, [&](QuestionColumn column) {
               return HasName(caption, CaptionOf(column));
           });
}

} // namespace

QString Sheet::Cell(const CsvRow &row, QLatin1StringView caption) const
{
    return row.cells.value(places.value(QString(caption).toCaseFolded(), -1));
}

Result<Sheet> ReadSheet(const QByteArray &bytes)
{
    const Result<QByteArray> text = Utf8Text(bytes);
    if (!text)
        return text.error();
    std::optional<Error> noTable;
    bool isTable = false;
    for (const char separator : csvSeparators) {
        const Result<QList<CsvRow>> rows = ReadCsv(*text, separator);
        isTable = isTable || rows;
        if (!rows)
            noTable = noTable.value_or(rows.error());
        else if (const std::optional<Sheet> sheet = SheetOf(*rows))
            return Complete(*sheet);
    }
    if (!isTable)
        return *noTable;
    return Error{u"There is no heading: a row with 'Question', 'Type' and 'Column Name'."_s};
}

QList<Refusal> RefusedCaptions(const Sheet &sheet)
{
    QList<Refusal> refusals;
    const QStringList &captions = sheet.heading.cells;
    for (qsizetype i = 0; i < captions.size(); ++i) {
        const QString caption = captions[i].trimmed();
        if (caption.isEmpty())
            continue;
        if (!IsKnown(caption))
            refusals.append(
                {sheet.heading.number, caption.left(40), u"No column has this name."_s});
        else if (sheet.places.value(caption.toCaseFolded()) != i)
            refusals.append(
                {sheet.heading.number, caption, u"There are two columns of this name."_s});
    }
    return refusals;
}

QList<Refusal> CellsWithoutCaption(const Sheet &sheet, const CsvRow &row)
{
    for (qsizetype i = 0; i < row.cells.size(); ++i)
        if (sheet.heading.cells.value(i).trimmed().isEmpty() && !row.cells[i].trimmed().isEmpty())
            return {{row.number, {}, u"Cell %1 has no caption above it."_s.arg(i + 1)}};
    return {};
}

} // namespace vellumo
