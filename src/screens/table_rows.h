#pragma once

#include "screens/label_lines.h"

namespace vellumo {

/// A row of a table of check boxes.
struct TableRow {
    QPoint box; ///< corner of the place of its box
    TextLine caption;
    int room = 0;       ///< pixels that the caption may be wide
    int captionEnd = 0; ///< where a wider one is cut off
};

/// The rows of a table of check boxes, as far as they begin on the screen and their captions are in
/// a list of the form.
QList<TableRow> RowsOf(const FormObject &table, const Form &form);

} // namespace vellumo
