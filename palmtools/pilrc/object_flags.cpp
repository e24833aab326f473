#include "palmtools/pilrc/object_flags.h"

namespace palmtools {
namespace {

// The bits are those of docs/palm-formats.md, "The objects of a form".

constexpr int objectUsable = 0x8000; ///< of every kind but table and scroll bar
constexpr int enabled = 0x4000;

constexpr int fieldEditable = 0x2000;
constexpr int fieldSingleLine = 0x1000;
constexpr int fieldAlways = 0x0200;
constexpr int fieldUnderlined = 0x0040;
constexpr int fieldNumeric = 0x0002;

constexpr int controlLeftAnchor = 0x0800;
constexpr int controlFrame = 0x0100;

constexpr int gadgetAlways = 0x4000;
constexpr int tableEditable = 0x4000;
constexpr int scrollBarUsable = 0x80;

constexpr int FlagIf(bool isSet, int flag)
{
    return isSet ? flag : 0;
}

/// A button may have a frame, a selector trigger always has one, the other controls never.
bool HasFrame(const FormObject &control)
{
    return control.kind == ObjectKind::selectorTrigger ||
           (control.kind == ObjectKind::button && control.frame);
}

} // namespace

int LabelFlags(const FormObject &label)
{
    return FlagIf(label.usable, objectUsable);
}

int FieldFlags(const FormObject &field)
{
    return fieldAlways | FlagIf(field.usable, objectUsable) |
           FlagIf(field.editable, fieldEditable) | FlagIf(field.singleLine, fieldSingleLine) |
           FlagIf(field.underlined, fieldUnderlined) | FlagIf(field.numeric, fieldNumeric);
}

int ControlFlags(const FormObject &control)
{
    return enabled | FlagIf(control.usable, objectUsable) |
           FlagIf(control.leftAnchor, controlLeftAnchor) | FlagIf(HasFrame(control), controlFrame);
}

int ListFlags(const FormObject &list)
{
    return enabled | FlagIf(list.usable, objectUsable);
}

int GadgetFlags(const FormObject &gadget)
{
    return gadgetAlways | FlagIf(gadget.usable, objectUsable);
}

int TableFlags(const FormObject &table)
{
    return FlagIf(table.editable, tableEditable);
}

int ScrollBarFlags(const FormObject &bar)
{
    return FlagIf(bar.usable, scrollBarUsable);
}

int ControlStyle(const FormObject &control)
{
    switch (control.kind) {
    case ObjectKind::checkBox:
        return 2;
    case ObjectKind::popupTrigger:
        return 3;
    case ObjectKind::selectorTrigger:
        return 4;
    default:
        return 0; // a button
    }
}

} // namespace palmtools
