#include "palmtools/pilrc/object_layout.h"

#include "palmtools/pilrc/object_flags.h"

#include <functional>

namespace palmtools {
namespace {

// What is put is a member of the object or what a function makes of it.

template <auto value> void Put8(Record &record, std::size_t offset, const FormObject &object)
{
    record.Put8(offset, std::invoke(value, object));
}

template <auto value> void Put16(Record &record, std::size_t offset, const FormObject &object)
{
    record.Put16(offset, std::invoke(value, object));
}

void PutXY(Record &record, std::size_t offset, const FormObject &object)
{
    PutPosition(record, offset, object.place);
}

void PutXYWH(Record &record, std::size_t offset, const FormObject &object)
{
    PutRectangle(record, offset, object.place);
}

constexpr auto PutNumber = Put16<&FormObject::number>;
constexpr auto PutFont = Put8<&FormObject::font>;

std::int64_t ItemCount(const FormObject &list)
{
    return static_cast<std::int64_t>(list.texts.size());
}

// The layouts are those of docs/palm-formats.md, "The objects of a form": an offset, and what is
// put there.

constexpr ObjectPart labelParts[] = {
    {0, PutNumber},
    {2, PutXY},
    {6, Put16<LabelFlags>},
    {8, PutFont},
};

constexpr ObjectPart fieldParts[] = {
    {0, PutNumber}, {2, PutXYWH}, {10, Put16<FieldFlags>}, {28, Put16<&FormObject::maxChars>},
    {38, PutFont},
};

constexpr ObjectPart controlParts[] = {
    {0, PutNumber},           {2, PutXYWH},  {14, Put16<ControlFlags>},
    {16, Put8<ControlStyle>}, {17, PutFont}, {18, Put8<&FormObject::group>},
};

constexpr ObjectPart listParts[] = {
    {0, PutNumber}, {2, PutXYWH}, {10, Put16<ListFlags>}, {16, Put16<ItemCount>}, {22, PutFont},
};

constexpr ObjectPart popupListParts[] = {
    {0, PutNumber},
    {2, Put16<&FormObject::listNumber>},
};

constexpr ObjectPart indicatorParts[] = {
    {0, PutXY},
};

constexpr ObjectPart gadgetParts[] = {
    {0, PutNumber},
    {2, Put16<GadgetFlags>},
    {4, PutXYWH},
};

constexpr ObjectPart tableParts[] = {
    {0, PutNumber},
    {2, PutXYWH},
    {10, Put16<TableFlags>},
    {12, Put16<&FormObject::columns>},
    {14, Put16<&FormObject::rows>},
};

constexpr ObjectPart scrollBarParts[] = {
    {0, PutXYWH},
    {8, PutNumber},
    {10, Put8<ScrollBarFlags>},
    {12, Put16<&FormObject::value>},
    {14, Put16<&FormObject::min>},
    {16, Put16<&FormObject::max>},
    {18, Put16<&FormObject::pageSize>},
};

constexpr ObjectLayout layouts[] = {
    {ObjectKind::title, 9, 12, {}, textTail},
    {ObjectKind::label, 8, 14, labelParts, textTail},
    {ObjectKind::field, 0, 40, fieldParts, noTail},
    {ObjectKind::button, 1, 20, controlParts, textTail},
    {ObjectKind::checkBox, 1, 20, controlParts, textTail},
    {ObjectKind::selectorTrigger, 1, 20, controlParts, textTail},
    {ObjectKind::popupTrigger, 1, 20, controlParts, textTail},
    {ObjectKind::list, 2, 32, listParts, itemsTail},
    {ObjectKind::popupList, 10, 4, popupListParts, noTail},
    {ObjectKind::graffitiIndicator, 11, 4, indicatorParts, noTail},
    {ObjectKind::gadget, 12, 20, gadgetParts, noTail},
    {ObjectKind::table, 3, 74, tableParts, cellsTail},
    {ObjectKind::scrollBar, 13, 24, scrollBarParts, noTail},
};

} // namespace

const ObjectLayout &LayoutOf(ObjectKind kind)
{
    const ObjectLayout *layout = layouts;
    while (layout->kind != kind)
        ++layout;
    return *layout;
}

} // namespace palmtools
