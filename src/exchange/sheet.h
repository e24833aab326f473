#pragma once

#include "exchange/csv.h"
#include "exchange/refusal.h"

#include <QHash>

namespace vellumo {

// Columns beside those of editing/question_columns.h.
inline constexpr QLatin1StringView idCaption{"Id"};
inline constexpr QLatin1StringView orderCaption{"Order"};

/// A table of questions as it was read, with its rows' places; docs/csv.md tells of the format.
struct Sheet {
    QList<CsvRow> form; ///< what stands above the heading
    CsvRow heading;
    QList<CsvRow> questions;
    QHash<QString, qsizetype> places; ///< of the captions folded, each where it is first

    /// The cell of a row in the column of this caption; empty where there is no such column.
    QString Cell(const CsvRow &row, QLatin1StringView caption) const;
};

/// The sheet in the bytes of a file, whichever separator it has. Fails, with the line where there
/// is one, where the bytes are no UTF-8 or no table, and where the heading is missing or lacks one
/// of the columns that no question can do without.
Result<Sheet> ReadSheet(const QByteArray &bytes);

/// The captions that are not known or stand there twice.
QList<Refusal> RefusedCaptions(const Sheet &sheet);

/// What a row has in cells that no caption stands above.
QList<Refusal> CellsWithoutCaption(const Sheet &sheet, const CsvRow &row);

} // namespace vellumo
