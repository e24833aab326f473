#pragma once

#include "readback/form.h"
#include "readback/record_layout.h"

namespace vellumo {

/// The record that an object begins with.
struct ObjectRecord : FormObject {
    quint32 entries = 0; ///< items of a list, columns of a table: they follow the record
};

/// Null for a number that is no kind.
const RecordLayout<ObjectRecord> *LayoutOf(ObjectKind kind);

/// A column of a table. Its rows have nothing that differs.
struct TableColumn {
    quint32 width = 0;
};
extern const RecordLayout<TableColumn> tableColumnLayout;
extern const RecordLayout<ObjectRecord> tableRowLayout;
constexpr qsizetype tableCellSize = 8; ///< of zeros
constexpr qsizetype listEntrySize = 4; ///< of zeros, for each item before the items themselves

} // namespace vellumo
