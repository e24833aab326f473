#include "screens/object_drawing.h"

#include "handheld/font_widths.h"
#include "handheld/screen_geometry.h"
#include "readback/form_flags.h"
#include "screens/control_drawing.h"
#include "screens/object_place.h"
#include "screens/svg_shapes.h"
#include "screens/table_rows.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr quint32 positionField = 98; // in which the viewer writes where a person is

/// How many lines of a place are on the screen.
int LinesIn(const QRect &place)
{
    return (std::min(place.y() + place.height(), screen::height) - place.y()) / screen::lineHeight;
}

void DrawField(QXmlStreamWriter &svg, const FormObject &field, const DrawingContext &context)
{
    const QRect place = PlaceOf(field);
    const int lines = field.flags & FormFlag::fieldSingleLine ? 1 : LinesIn(place);
    for (int line = 1; field.flags & FormFlag::fieldUnderlined && line <= lines; ++line)
        DotPixels(svg, place.topLeft() + QPoint(0, line * screen::lineHeight - 1), place.width());
    if (field.number == positionField) {
        const QString position = u"%1 of %2"_s.arg(context.form.number).arg(context.formCount);
        DrawLine(svg, LineAt(place.topLeft() + QPoint(1, 0), position.toLatin1(), standardFont),
                 "sample"_L1);
    }
}

void DrawControlOf(QXmlStreamWriter &svg, const FormObject &control, const DrawingContext &)
{
    DrawControl(svg, control);
}

void DrawShownList(QXmlStreamWriter &svg, const FormObject &list, const DrawingContext &)
{
    DrawList(svg, list);
}

void DrawTable(QXmlStreamWriter &svg, const FormObject &table, const DrawingContext &context)
{
    for (const TableRow &row : RowsOf(table, context.form)) {
        DrawBox(svg, row.box);
        DrawLine(svg, row.caption);
        if (row.caption.place.width() > row.room)
            FillPixels(svg, {row.captionEnd, row.box.y(), screen::width, screen::lineHeight},
                       "paper"_L1);
    }
}

void DrawLabel(QXmlStreamWriter &svg, const FormObject &label, const DrawingContext &)
{
    for (const TextLine &line : LinesOf(label))
        DrawLine(svg, line);
}

void DrawTitle(QXmlStreamWriter &svg, const FormObject &title, const DrawingContext &)
{
    const TextLine line = TitleLine(title);
    const int tab = line.place.x() + line.place.width() + 2;
    FillPixels(svg, {0, 13, screen::width, 2}, "tab"_L1);
    FillPixels(svg, {1, 0, tab - 2, 1}, "tab"_L1);
    FillPixels(svg, {0, 1, tab, 12}, "tab"_L1);
    DrawLine(svg, line, "title"_L1);
}

/// Nothing is drawn there before somebody does.
void DrawArea(QXmlStreamWriter &svg, const FormObject &gadget, const DrawingContext &)
{
    MarkArea(svg, PlaceOf(gadget), "area"_L1, Describe(gadget));
}

void DrawIndicator(QXmlStreamWriter &svg, const FormObject &indicator, const DrawingContext &)
{
    MarkArea(svg, {PlaceOf(indicator).topLeft(), QSize(6, 10)}, "area"_L1, Describe(indicator));
}

void DrawScrollBar(QXmlStreamWriter &svg, const FormObject &bar, const DrawingContext &)
{
    constexpr int arrow = 5; // with the gap behind it
    const QRect place = PlaceOf(bar);
    DrawArrow(svg, place.topLeft(), true);
    DrawArrow(svg, {place.x(), place.y() + place.height() - 4}, false);
    const QRect rail(place.x() + 2, place.y() + arrow, 3, std::max(0, place.height() - 2 * arrow));
    FillPixels(svg, rail, "rail"_L1);
    const qint64 range = qint64(bar.maximum) - bar.minimum;
    if (range <= 0 || bar.value < bar.minimum || bar.value > bar.maximum)
        return;
    const qint64 thumb = rail.height() * qint64(bar.pageSize) / (range + bar.pageSize);
    const qint64 above = (qint64(bar.value) - bar.minimum) * (rail.height() - thumb) / range;
    FillPixels(svg, {rail.x(), rail.y() + int(above), rail.width(), int(thumb)}, "ink"_L1);
}

void DrawNothing(QXmlStreamWriter &, const FormObject &, const DrawingContext &) {}

constexpr struct {
    ObjectKind kind;
    void (*draw)(QXmlStreamWriter &svg, const FormObject &object, const DrawingContext &context);
} objectDrawings[] = {
    {ObjectKind::Field, DrawField},
    {ObjectKind::Control, DrawControlOf},
    {ObjectKind::List, DrawShownList},
    {ObjectKind::Table, DrawTable},
    {ObjectKind::Label, DrawLabel},
    {ObjectKind::Title, DrawTitle},
    {ObjectKind::PopupList, DrawNothing}, // it only ties a trigger to its list
    {ObjectKind::GraffitiIndicator, DrawIndicator},
    {ObjectKind::Gadget, DrawArea},
    {ObjectKind::ScrollBar, DrawScrollBar},
};

} // namespace

void DrawObject(QXmlStreamWriter &svg, const FormObject &object, const DrawingContext &context)
{
    const auto *row = std::ranges::find(objectDrawings, object.kind,
                                        [](const auto &drawing) { return drawing.kind; });
    if (row != std::end(objectDrawings) && IsShown(object))
        row->draw(svg, object, context);
}

void DrawList(QXmlStreamWriter &svg, const FormObject &list)
{
    const QRect place = PlaceOf(list);
    FramePixels(svg, place.adjusted(-1, -1, 1, 1), "frame"_L1);
    QPoint corner = place.topLeft() + QPoint(1, 0);
    const qsizetype rows = std::max(0, LinesIn(place));
    for (const QByteArray &item : list.items.first(std::min(rows, list.items.size()))) {
        DrawLine(svg, LineAt(corner, item, list.font));
        corner.ry() += screen::lineHeight;
    }
    if (rows > 0 && list.items.size() > rows) { // there are more below
        const QPoint arrow(place.x() + place.width() - 9, corner.y() - 8);
        FillPixels(svg, {arrow - QPoint(1, 2), QSize(9, 9)}, "paper"_L1);
        FillPixels(svg, {arrow + QPoint(2, -1), QSize(3, 4)}, "ink"_L1);
        DrawArrow(svg, arrow + QPoint(0, 3), false);
    }
}

} // namespace vellumo
