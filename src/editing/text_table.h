#pragma once

#include <QStringList>

namespace vellumo {

/// Rows of cells as spreadsheets lay them into the clipboard: tabs between cells, LF after each
/// row. A cell with a tab, a line break or a quotation mark stands in quotation marks, and those in
/// it are doubled.
QString WriteTable(const QList<QStringList> &rows);

/// The rows of such a text; CR LF and CR end a row, too. A quotation mark that does not open such a
/// cell, or whose partner is missing, is a character like any other.
QList<QStringList> ReadTable(QStringView text);

} // namespace vellumo
