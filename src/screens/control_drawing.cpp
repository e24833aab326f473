#include "screens/control_drawing.h"

#include "handheld/font_widths.h"
#include "readback/form_flags.h"
#include "screens/object_place.h"
#include "screens/svg_shapes.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The place of a frame, which surrounds that of its control.
QRect AroundPlace(const FormObject &control)
{
    return PlaceOf(control).adjusted(-1, -1, 1, 1);
}

void DrawTextAt(QXmlStreamWriter &svg, const FormObject &control, int right)
{
    DrawLine(svg,
             LineAt(PlaceOf(control).topLeft() + QPoint(right, 0), control.text, control.font));
}

/// A page with lines on it.
void DrawPageSymbol(QXmlStreamWriter &svg, QPoint corner)
{
    FramePixels(svg, {corner + QPoint(0, 1), QSize(7, 9)}, "frame"_L1);
    for (const QRect &line : {QRect(2, 3, 3, 1), QRect(2, 5, 3, 1), QRect(2, 7, 2, 1)})
        FillPixels(svg, line.translated(corner), "ink"_L1);
}

/// A page whose lower right corner is turned up.
void DrawNoteSymbol(QXmlStreamWriter &svg, QPoint corner)
{
    DrawOutline(svg, u"M%1.5 %2.5h5v5l-2 2h-3zm5 5h-2v2"_s.arg(corner.x() + 1).arg(corner.y() + 3),
                "frame"_L1);
}

void DrawButton(QXmlStreamWriter &svg, const FormObject &button)
{
    constexpr int textHeight = 12;
    if (button.flags & FormFlag::controlFrame)
        FramePixels(svg, AroundPlace(button), "frame"_L1, 3);
    else
        FillPixels(svg, PlaceOf(button), "paper"_L1);
    const QRect place = PlaceOf(button);
    if (button.font == symbolFont && button.text == "\t")
        return DrawPageSymbol(svg, place.topLeft());
    if (button.font == symbolFont && button.text == "\v")
        return DrawNoteSymbol(svg, place.topLeft());
    TextLine line = LineAt(place.topLeft(), button.text, button.font);
    line.place.translate((place.width() - line.place.width()) / 2,
                         (place.height() - textHeight) / 2);
    DrawLine(svg, line);
}

void DrawCheckBox(QXmlStreamWriter &svg, const FormObject &box)
{
    DrawBox(svg, PlaceOf(box).topLeft());
    DrawTextAt(svg, box, 18);
}

void DrawPopupTrigger(QXmlStreamWriter &svg, const FormObject &trigger)
{
    DrawArrow(svg, PlaceOf(trigger).topLeft() + QPoint(0, 3), false);
    DrawTextAt(svg, trigger, 10);
}

void DrawSelectorTrigger(QXmlStreamWriter &svg, const FormObject &trigger)
{
    FramePixels(svg, AroundPlace(trigger), "dots"_L1);
    DrawTextAt(svg, trigger, 3);
}

constexpr struct {
    ControlStyle style;
    void (*draw)(QXmlStreamWriter &svg, const FormObject &control);
} drawings[] = {
    {ControlStyle::Button, DrawButton},
    {ControlStyle::CheckBox, DrawCheckBox},
    {ControlStyle::PopupTrigger, DrawPopupTrigger},
    {ControlStyle::SelectorTrigger, DrawSelectorTrigger},
};

} // namespace

void DrawControl(QXmlStreamWriter &svg, const FormObject &control)
{
    const auto *row = std::ranges::find(drawings, ControlStyle(control.style),
                                        [](const auto &drawing) { return drawing.style; });
    // A style that no form of ours has is a button to the eye.
    (row == std::end(drawings) ? DrawButton : row->draw)(svg, control);
}

void DrawBox(QXmlStreamWriter &svg, QPoint corner)
{
    FramePixels(svg, {corner + QPoint(2, 2), QSize(8, 8)}, "frame"_L1);
}

} // namespace vellumo
