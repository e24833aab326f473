#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

namespace vellumo {

/// A row of a table that has something in it.
struct CsvRow {
    qsizetype number; ///< from 1, empty rows counted
    QStringList cells;
};

/// What may stand between the cells of a table that is read; a comma does where one is written.
inline constexpr char csvSeparators[] = {',', ';', '\t'};

/// Of rows with something in them in a table, and of lines in a text, that are read.
inline constexpr qsizetype mostRows = 100'000;

/// The rows of a table by RFC 4180, of UTF-8 without a byte order mark. A row may end in CR, LF or
/// both. Fails, with the line, where a quotation mark stands where none can or lacks its partner,
/// and where there are more rows or more than a million cells.
Result<QList<CsvRow>> ReadCsv(const QByteArray &text, char separator);

/// The bytes of a table in UTF-8, CR LF after each row. Cells are quoted where they need to be.
QByteArray WriteCsv(const QList<QStringList> &rows);

} // namespace vellumo
