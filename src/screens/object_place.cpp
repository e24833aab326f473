#include "screens/object_place.h"

#include "readback/form_flags.h"

namespace vellumo {

QRect PlaceOf(const FormObject &object)
{
    return {int(object.x), int(object.y), int(object.width), int(object.height)};
}

bool IsShown(const FormObject &object)
{
    switch (object.kind) {
    case ObjectKind::ScrollBar:
        return object.flags & FormFlag::scrollBarUsable;
    case ObjectKind::Field:
    case ObjectKind::Control:
    case ObjectKind::List:
    case ObjectKind::Label:
    case ObjectKind::Gadget:
        return object.flags & FormFlag::usable;
    case ObjectKind::Table: // the others have no such flag
    case ObjectKind::Title:
    case ObjectKind::PopupList:
    case ObjectKind::GraffitiIndicator:
        break;
    }
    return true;
}

} // namespace vellumo
