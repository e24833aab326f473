#include "screens/table_rows.h"

#include "handheld/font_widths.h"
#include "handheld/screen_geometry.h"
#include "screens/form_parts.h"
#include "screens/object_place.h"

namespace vellumo {

QList<TableRow> RowsOf(const FormObject &table, const Form &form)
{
    constexpr int gap = 1; // between the columns
    QList<TableRow> rows;
    const FormObject *captions = CaptionsOf(form);
    if (!captions)
        return rows;
    const int room = int(table.columnWidths.value(1));
    QPoint box = PlaceOf(table).topLeft();
    for (const QByteArray &caption : captions->items) {
        if (rows.size() == table.rows || box.y() >= screen::height)
            break;
        const QPoint corner = box + QPoint(int(table.columnWidths.value(0)) + gap, 0);
        rows.append({box, LineAt(corner, caption, standardFont), room, corner.x() + room + gap});
        box.ry() += screen::lineHeight;
    }
    return rows;
}

} // namespace vellumo
