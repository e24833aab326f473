#pragma once

#include "exchange/form_sheet.h"
#include "platform/result.h"

namespace vellumo {

/// Writes the tables as sheets of a workbook (.xlsx) to a new file in a folder of the
/// program's own; texts as texts, whatever they
/// look like. The same tables give the same bytes. Fails where a cell would be longer than the
/// 32,767 characters that one can have, and where the file cannot be written.
Outcome WriteWorkbook(const QList<SheetTable> &tables, const QString &path);

} // namespace vellumo
