#include "readback/expected_objects.h"

#include "handheld/font_widths.h"
#include "readback/form_flags.h"

#include <algorithm>

namespace vellumo::expected {
namespace {

constexpr quint32 listMargins = 6; // left and right of the items, together

constexpr quint32 plainControl = FormFlag::usable | FormFlag::enabled | FormFlag::controlLeftAnchor;
constexpr quint32 framedControl = plainControl | FormFlag::controlFrame;

FormObject Placed(ObjectKind kind, quint32 number, Rectangle place, quint32 flags)
{
    return {.kind = kind,
            .number = number,
            .x = place.x,
            .y = place.y,
            .width = place.width,
            .height = place.height,
            .flags = flags};
}

FormObject Field(quint32 number, Rectangle place, quint32 flags, quint32 maxChars)
{
    FormObject field =
        Placed(ObjectKind::Field, number, place, FormFlag::usable | FormFlag::fieldAlways | flags);
    field.maxChars = maxChars;
    return field;
}

FormObject Control(ControlStyle style, quint32 number, Rectangle place, quint32 flags,
                   const QByteArray &text)
{
    FormObject control = Placed(ObjectKind::Control, number, place, flags);
    control.style = quint32(style);
    control.text = text;
    return control;
}

} // namespace

FormObject Title(const QByteArray &text)
{
    return {.kind = ObjectKind::Title, .text = text};
}

FormObject Label(quint32 number, quint32 x, quint32 y, const QByteArray &text, Font font)
{
    FormObject label = Placed(ObjectKind::Label, number, {x, y, 0, 0}, FormFlag::usable);
    label.font = quint32(font);
    label.text = text;
    return label;
}

FormObject TextField(quint32 number, Rectangle place, quint32 maxChars)
{
    return Field(number, place, FormFlag::fieldEditable | FormFlag::fieldUnderlined, maxChars);
}

FormObject NumberField(quint32 number, Rectangle place, quint32 maxChars)
{
    return Field(number, place,
                 FormFlag::fieldEditable | FormFlag::fieldUnderlined | FormFlag::fieldSingleLine |
                     FormFlag::fieldNumeric,
                 maxChars);
}

FormObject ShownField(quint32 number, Rectangle place, quint32 maxChars)
{
    return Field(number, place, FormFlag::fieldSingleLine, maxChars);
}

FormObject GraffitiIndicator(quint32 x, quint32 y)
{
    return {.kind = ObjectKind::GraffitiIndicator, .x = x, .y = y};
}

FormObject FramedButton(quint32 number, Rectangle place, const QByteArray &text)
{
    return Control(ControlStyle::Button, number, place, framedControl, text);
}

FormObject SymbolButton(quint32 number, Rectangle place, const QByteArray &symbol)
{
    FormObject button = Control(ControlStyle::Button, number, place, plainControl, symbol);
    button.font = quint32(Font::Symbols);
    return button;
}

FormObject CheckBox(quint32 number, Rectangle place, quint32 group, const QByteArray &text)
{
    FormObject box = Control(ControlStyle::CheckBox, number, place, plainControl, text);
    box.group = group;
    return box;
}

FormObject SelectorTrigger(quint32 number, Rectangle place, const QByteArray &text)
{
    return Control(ControlStyle::SelectorTrigger, number, place, framedControl, text);
}

FormObject PopupTrigger(quint32 number, Rectangle place)
{
    return Control(ControlStyle::PopupTrigger, number, place, plainControl, "");
}

FormObject PopupList(quint32 trigger, quint32 list)
{
    return {.kind = ObjectKind::PopupList, .number = trigger, .list = list};
}

FormObject HiddenList(quint32 number, quint32 x, quint32 y, quint32 height)
{
    return Placed(ObjectKind::List, number, {x, y, listMargins, height}, FormFlag::enabled);
}

void Fill(FormObject &list, const QList<QByteArray> &items)
{
    quint32 widest = 0;
    for (const QByteArray &item : items)
        widest = std::max(widest, TextWidth(item, list.font));
    list.items = items;
    list.width += widest;
}

FormObject EditableTable(quint32 number, Rectangle place, quint32 rows,
                         const QList<quint32> &columnWidths)
{
    FormObject table = Placed(ObjectKind::Table, number, place, FormFlag::tableEditable);
    table.rows = rows;
    table.columnWidths = columnWidths;
    return table;
}

FormObject ScrollBar(quint32 number, Rectangle place)
{
    FormObject bar = Placed(ObjectKind::ScrollBar, number, place, FormFlag::scrollBarUsable);
    bar.value = 50;
    bar.maximum = 100;
    bar.pageSize = 10;
    return bar;
}

FormObject Gadget(quint32 number, Rectangle place)
{
    return Placed(ObjectKind::Gadget, number, place, FormFlag::usable | FormFlag::enabled);
}

} // namespace vellumo::expected
