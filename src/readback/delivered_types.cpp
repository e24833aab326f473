#include "readback/delivered_types.h"

#include "readback/expected_objects.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {

using namespace expected;

namespace {

constexpr Rectangle writingPlace = {10, 56, 135, 60};
constexpr quint32 yesOrNo = 1; // the group of which only one is marked

const DeliveredType noType;

} // namespace

// docs/palm-formats.md, "The types of questions" and "The form of a question".
const std::array<DeliveredType, 10> deliveredTypes = {{
    {.name = "Text"_L1,
     .typeCode = 0x00,
     .valueCode = 0x00,
     .objects = {TextField(2, writingPlace, 255), GraffitiIndicator(142, 126)}},
    {.name = "Numeric"_L1,
     .typeCode = 0x01,
     .valueCode = 0x01,
     .objects = {NumberField(2, {10, 56, 50, 12}, 9)}},
    {.name = "Yes/No"_L1,
     .typeCode = 0x02,
     .valueCode = 0x00,
     .hasSecondControl = true,
     .objects = {CheckBox(2, {10, 56, 33, 12}, yesOrNo, "Yes"),
                 CheckBox(3, {53, 56, 29, 12}, yesOrNo, "No")}},
    {.name = "Date/Time"_L1,
     .typeCode = 0x03,
     .valueCode = 0x03,
     .hasSecondControl = true,
     .objects = {Label(4, 24, 64, "Date:"), SelectorTrigger(2, {52, 64, 53, 12}, "Select Date"),
                 Label(5, 24, 84, "Time:"), SelectorTrigger(3, {52, 84, 54, 12}, "Select Time")}},
    {.name = "Pulldown List"_L1,
     .typeCode = 0x04,
     .valueCode = 0x00,
     .ownsItems = true,
     .objects = {PopupTrigger(2, {10, 70, 64, 12}), HiddenList(3, 13, 30, 88), PopupList(2, 3)}},
    {.name = "Signature"_L1,
     .typeCode = 0x05,
     .valueCode = 0x02,
     .objects = {Gadget(2, {4, 75, 152, 61})}},
    {.name = "Notes"_L1,
     .typeCode = 0x06,
     .valueCode = 0x02,
     .objects = {Gadget(2, {4, 50, 152, 88})}},
    {.name = "Scanned Barcode"_L1,
     .typeCode = 0x07,
     .valueCode = 0x00,
     .hasSecondControl = true,
     .objects = {TextField(2, writingPlace, 255), GraffitiIndicator(142, 126),
                 FramedButton(3, {66, 119, 31, 12}, "Scan")}},
    {.name = "Currency"_L1,
     .typeCode = 0x08,
     .valueCode = 0x05,
     .objects = {Label(3, 24, 64, "$"), NumberField(2, {30, 64, 80, 12}, 10)}},
    {.name = "Checkboxes"_L1,
     .typeCode = 0x09,
     .valueCode = 0x04,
     .ownsItems = true,
     .objects = {EditableTable(2, {13, 54, 133, 82}, 7, {12, 120}), ScrollBar(3, {148, 53, 7, 84}),
                 HiddenList(4, 13, 53, 11)}},
}};

const DeliveredType &TypeOfName(std::span<const DeliveredType> types, QStringView name)
{
    const auto found = std::ranges::find_if(
        types, [name](const DeliveredType &type) { return type.name == name; });
    return found == types.end() ? noType : *found;
}

const DeliveredType &TypeOfCode(std::span<const DeliveredType> types, quint8 code)
{
    const auto found = std::ranges::find(types, code, &DeliveredType::typeCode);
    return found == types.end() ? noType : *found;
}

QString NameOfTypeCode(quint8 code)
{
    const DeliveredType &type = TypeOfCode(deliveredTypes, code);
    return type.name.isEmpty() ? u"0x%1"_s.arg(code, 2, 16, QChar(u'0')) : QString(type.name);
}

} // namespace vellumo
