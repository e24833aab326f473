#include "readback/form.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

template <typename T> struct Name {
    T value;
    QLatin1StringView name;
};

constexpr Name<ObjectKind> kindNames[] = {
    {ObjectKind::Field, "field"_L1},
    {ObjectKind::Control, "control"_L1},
    {ObjectKind::List, "list"_L1},
    {ObjectKind::Table, "table"_L1},
    {ObjectKind::Label, "label"_L1},
    {ObjectKind::Title, "title"_L1},
    {ObjectKind::PopupList, "popup list"_L1},
    {ObjectKind::GraffitiIndicator, "Graffiti indicator"_L1},
    {ObjectKind::Gadget, "gadget"_L1},
    {ObjectKind::ScrollBar, "scroll bar"_L1},
};

constexpr Name<ControlStyle> styleNames[] = {
    {ControlStyle::Button, "button"_L1},
    {ControlStyle::CheckBox, "check box"_L1},
    {ControlStyle::PopupTrigger, "popup trigger"_L1},
    {ControlStyle::SelectorTrigger, "selector trigger"_L1},
};

template <typename T, size_t size>
QString NameIn(const Name<T> (&names)[size], T value, QLatin1StringView otherwise)
{
    const auto found = std::ranges::find(names, value, &Name<T>::value);
    return found == std::end(names) ? otherwise : found->name;
}

} // namespace

QString NameOf(ObjectKind kind)
{
    return NameIn(kindNames, kind, "object"_L1);
}

QString Describe(const FormObject &object)
{
    // The directory of a form has one kind for all controls; a person knows them by their styles.
    const QString name = object.kind == ObjectKind::Control
                             ? NameIn(styleNames, ControlStyle(object.style), "control"_L1)
                             : NameOf(object.kind);
    return object.number == 0 ? name : u"%1 %2"_s.arg(name).arg(object.number);
}

} // namespace vellumo
