#include "readback/expected_form.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr quint32 usable = 0x8000;
constexpr quint32 framedControl = 0xC900;
constexpr quint32 plainControl = 0xC800;
constexpr quint32 writingField = 0xA240;
constexpr quint32 numberField = 0xB242;
constexpr quint32 shownField = 0x9200;
constexpr quint32 usableGadget = 0xC000;
constexpr quint32 hiddenList = 0x4000;
constexpr quint32 editableTable = 0x4000;
constexpr quint32 usableScrollBar = 0x80;

constexpr quint32 leastListWidth = 6;
constexpr quint32 boldFont = 1;
constexpr quint32 symbolFont = 3;

using enum ControlStyle;

struct Rectangle {
    quint32 x, y, width, height;
};

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

FormObject Title(const QByteArray &text)
{
    return {.kind = ObjectKind::Title, .text = text};
}

FormObject Label(quint32 number, quint32 x, quint32 y, const QByteArray &text, quint32 font = 0)
{
    FormObject label = Placed(ObjectKind::Label, number, {x, y, 0, 0}, usable);
    label.font = font;
    label.text = text;
    return label;
}

FormObject Field(quint32 number, Rectangle place, quint32 flags, quint32 maxChars)
{
    FormObject field = Placed(ObjectKind::Field, number, place, flags);
    field.maxChars = maxChars;
    return field;
}

FormObject Control(ControlStyle style, quint32 number, Rectangle place, quint32 flags,
                   const QByteArray &text)
{
    FormObject control = Placed(ObjectKind::Control, number, place, flags);
    control.style = quint32(style);
    control.text = text;
    control.group = style == CheckBox ? 1 : 0;
    return control;
}

FormObject SymbolButton(quint32 number, Rectangle place, const QByteArray &symbol)
{
    FormObject button = Control(Button, number, place, plainControl, symbol);
    button.font = symbolFont;
    return button;
}

FormObject Gadget(quint32 number, Rectangle place)
{
    return Placed(ObjectKind::Gadget, number, place, usableGadget);
}

FormObject GraffitiIndicator()
{
    return {.kind = ObjectKind::GraffitiIndicator, .x = 142, .y = 126};
}

FormObject PopupList(quint32 trigger, quint32 list)
{
    return {.kind = ObjectKind::PopupList, .number = trigger, .list = list};
}

FormObject CheckTable()
{
    FormObject table = Placed(ObjectKind::Table, 2, {13, 54, 133, 82}, editableTable);
    table.rows = 7;
    table.columnWidths = {12, 120};
    return table;
}

FormObject CheckScrollBar()
{
    FormObject bar = Placed(ObjectKind::ScrollBar, 3, {148, 53, 7, 84}, usableScrollBar);
    bar.value = 50;
    bar.maximum = 100;
    bar.pageSize = 10;
    return bar;
}

FormObject List(quint32 number, Rectangle place, const QList<QByteArray> &items)
{
    FormObject list = Placed(ObjectKind::List, number, place, hiddenList);
    list.items = items;
    return list;
}

/// What takes the answer, and what the type has besides.
QList<FormObject> AnswerObjects(const DeliveredQuestion &question)
{
    const Rectangle wide = {10, 56, 135, 60};
    const struct {
        QLatin1StringView type;
        QList<FormObject> objects;
    } rows[] = {
        {"Text"_L1, {Field(2, wide, writingField, 255), GraffitiIndicator()}},
        {"Numeric"_L1, {Field(2, {10, 56, 50, 12}, numberField, 9)}},
        {"Currency"_L1, {Label(3, 24, 64, "$"), Field(2, {30, 64, 80, 12}, numberField, 10)}},
        {"Notes"_L1, {Gadget(2, {4, 50, 152, 88})}},
        {"Signature"_L1, {Gadget(2, {4, 75, 152, 61})}},
        {"Yes/No"_L1,
         {Control(CheckBox, 2, {10, 56, 33, 12}, plainControl, "Yes"),
          Control(CheckBox, 3, {53, 56, 29, 12}, plainControl, "No")}},
        {"Date/Time"_L1,
         {Label(4, 24, 64, "Date:"),
          Control(SelectorTrigger, 2, {52, 64, 53, 12}, framedControl, "Select Date"),
          Label(5, 24, 84, "Time:"),
          Control(SelectorTrigger, 3, {52, 84, 54, 12}, framedControl, "Select Time")}},
        {"Scanned Barcode"_L1,
         {Field(2, wide, writingField, 255), GraffitiIndicator(),
          Control(Button, 3, {66, 119, 31, 12}, framedControl, "Scan")}},
        {"Pulldown List"_L1,
         {Control(PopupTrigger, 2, {10, 70, 64, 12}, plainControl, ""),
          List(3, {13, 30, leastListWidth, 88}, question.items), PopupList(2, 3)}},
        {"Checkboxes"_L1,
         {CheckTable(), CheckScrollBar(), List(4, {13, 53, leastListWidth, 11}, question.items)}},
    };
    const auto found = std::ranges::find_if(
        rows, [&question](const auto &row) { return row.type == question.type; });
    return found == std::end(rows) ? QList<FormObject>() : found->objects;
}

/// What every form has after the objects of its type.
QList<FormObject> CommonObjects()
{
    return {SymbolButton(97, {150, 33, 8, 13}, "\v"),
            Field(98, {10, 21, 80, 13}, shownField, 15),
            Control(Button, 99, {2, 144, 35, 15}, framedControl, "Prev"),
            Control(Button, 100, {122, 144, 35, 15}, framedControl, "Next"),
            Control(Button, 101, {64, 144, 35, 15}, framedControl, "Clear"),
            SymbolButton(102, {148, 2, 8, 11}, "\t")};
}

} // namespace

Form ExpectedForm(quint32 number, const DeliveredQuestion &question)
{
    return {.number = number,
            .width = 160,
            .height = 160,
            .flags = usable,
            .objects = QList<FormObject>{Title(question.title),
                                         Label(1, 10, 34, question.text, boldFont)} +
                       AnswerObjects(question) + CommonObjects()};
}

Navigation ExpectedNavigation(QStringView type)
{
    const bool hasSecondControl =
        type == "Scanned Barcode"_L1 || type == "Yes/No"_L1 || type == "Date/Time"_L1;
    const QList<NavigationItem> answer =
        hasSecondControl ? QList<NavigationItem>{{2, 0, 3}, {3, 2, 99}, {99, 3, 101}}
                         : QList<NavigationItem>{{2, 0, 100}, {99, 2, 101}};
    return {.initialState = 1,
            .initialObject = 2,
            .items = answer + QList<NavigationItem>{{101, 99, 100}, {100, 101, 2}}};
}

} // namespace vellumo
