#pragma once

#include "exchange/csv.h"
#include "exchange/item_order.h"
#include "exchange/refusal.h"
#include "model/project.h"

namespace vellumo {

/// What a sheet says of the form, above its heading.
struct SheetForm {
    Project project = {}; ///< without questions
    bool hasNextId = false;
    QList<ItemOrderEntry> itemOrder = {};
    qsizetype itemOrderRow = 0; ///< in which it stands
    QList<Refusal> refusals = {};
};

inline constexpr QLatin1StringView itemOrderName{"Item order"};

/// The rows that say it, each a name and a text.
QList<QStringList> FormRows(const Project &project);

/// What such rows say; any of them may be missing.
SheetForm ReadFormRows(const QList<CsvRow> &rows);

/// The whole number in a cell; an error where it is none of 32 bits.
Result<int> NumberIn(const QString &cell);

} // namespace vellumo
