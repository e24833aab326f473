#include "exchange/item_source.h"

#include "editing/clipboard_texts.h"
#include "editing/pasted_items.h"
#include "exchange/csv.h"
#include "exchange/csv_text.h"
#include "exchange/list_cell.h"
#include "exchange/storable_text.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// A form feed and the like are blanks, also at an end.
void AppendItem(QList<NewItem> &items, qsizetype row, QStringView text)
{
    for (const QString &line : LinesOf(OneLine(text)))
        items.append({row, line});
}

qsizetype PlaceOf(const QList<CsvRow> &rows, const QString &caption)
{
    const QStringList first = rows.isEmpty() ? QStringList() : rows.first().cells;
    const auto found = std::ranges::find_if(first, [&](const QString &cell) {
        return cell.trimmed().compare(caption.trimmed(), Qt::CaseInsensitive) == 0;
    });
    return found == first.end() ? -1 : found - first.begin();
}

/// The table by the separator that gives its first row the most cells, with the caption if one is
/// asked for.
Result<QList<CsvRow>> TableOf(const QByteArray &text, const QString &caption)
{
    std::optional<QList<CsvRow>> best;
    std::optional<Error> noTable;
    bool isTable = false;
    qsizetype mostCells = 0;
    for (const char separator : csvSeparators) {
        const Result<QList<CsvRow>> rows = ReadCsv(text, separator);
        if (!rows) {
            noTable = noTable.value_or(rows.error());
            continue;
        }
        isTable = true;
        const qsizetype cells = rows->isEmpty() ? 0 : rows->first().cells.size();
        const bool isUsable = caption.isEmpty() || PlaceOf(*rows, caption) >= 0;
        if (isUsable && (!best || cells > mostCells)) {
            best = *rows;
            mostCells = cells;
        }
    }
    if (best)
        return *best;
    return isTable ? Error{u"The first row has no column '%1'."_s.arg(caption)} : *noTable;
}

} // namespace

Result<QList<NewItem>> ItemsOfText(const QByteArray &bytes)
{
    const Result<QByteArray> text = Utf8Text(bytes);
    if (!text)
        return text.error();
    QList<NewItem> items;
    qsizetype number = 0;
    const QString unified = WithLineFeeds(FromUtf8(*text));
    if (unified.count(u'\n') > mostRows)
        return Error{u"The text has more than %1 lines."_s.arg(mostRows)};
    for (const QStringView line : QStringView(unified).split(u'\n'))
        AppendItem(items, ++number, line);
    return items;
}

Result<QList<NewItem>> ItemsOfTable(const QByteArray &bytes, const QString &caption)
{
    const Result<QByteArray> text = Utf8Text(bytes);
    if (!text)
        return text.error();
    const Result<QList<CsvRow>> rows = TableOf(*text, caption);
    if (!rows)
        return rows.error();
    const qsizetype place = caption.isEmpty() ? 0 : PlaceOf(*rows, caption);
    QList<NewItem> items;
    for (const CsvRow &row : rows->sliced(caption.isEmpty() ? 0 : 1))
        AppendItem(items, row.number, row.cells.value(place));
    return items;
}

QList<Refusal> AddItems(ItemList &items, const ItemRules &rules, const QList<NewItem> &added)
{
    QList<Refusal> refusals;
    for (const auto &[row, text] : added) {
        QString refusal = rules.count.Objection(items.Items().size() + 1);
        if (refusal.isEmpty())
            refusal = ObjectionToStoring(text);
        if (refusal.isEmpty())
            refusal = PutItem(items, text);
        if (!refusal.isEmpty())
            refusals.append({row, {}, refusal});
    }
    return refusals;
}

} // namespace vellumo
