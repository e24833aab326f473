#include "model/question_types.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr QLatin1StringView noType = "0x10"_L1;

constexpr ItemRules pulldownRules = {
    .count = pulldownLimit,
    .introduction = "A pulldown list is made up of a collection of text items a user "
                    "can select from in the Vellsheet."_L1,
    .offersNames = true,
};

constexpr ItemRules checkboxRules = {
    .count = checkboxLimit,
    .introduction = "A set of checkboxes allows the user to mark off multiple "
                    "checkboxes as an answer to your question."_L1,
    .offersNames = false,
};

constexpr std::array<QuestionType, typeCount> types = {{
    {TypeId::Text, "Text"_L1, "0x00"_L1, "0x00"_L1},
    {TypeId::Numeric, "Numeric"_L1, "0x01"_L1, "0x01"_L1},
    {TypeId::PulldownList, "Pulldown List"_L1, "0x04"_L1, "0x00"_L1, pulldownRules},
    {TypeId::YesNo, "Yes/No"_L1, "0x02"_L1, "0x00"_L1},
    {TypeId::Signature, "Signature"_L1, "0x05"_L1, "0x02"_L1},
    {TypeId::Notes, "Notes"_L1, "0x06"_L1, "0x02"_L1},
    {TypeId::DateTime, "Date/Time"_L1, "0x03"_L1, "0x03"_L1},
    {TypeId::Currency, "Currency"_L1, "0x08"_L1, "0x05"_L1},
    {TypeId::ScannedBarcode, "Scanned Barcode"_L1, "0x07"_L1, "0x00"_L1},
    {TypeId::Checkboxes, "Checkboxes"_L1, "0x09"_L1, "0x04"_L1, checkboxRules},
}};

consteval bool InOrder()
{
    for (size_t i = 0; i < typeCount; ++i)
        if (types[i].id != static_cast<TypeId>(i))
            return false;
    return true;
}
static_assert(InOrder());

} // namespace

constinit const std::array<QuestionType, typeCount> questionTypes = types;

const QuestionType *TypeNamed(QStringView name)
{
    const auto *found = std::ranges::find_if(
        questionTypes, [name](const QuestionType &type) { return type.name == name; });
    return found == questionTypes.end() ? nullptr : found;
}

bool HasItems(QStringView name)
{
    const QuestionType *type = TypeNamed(name);
    return type && type->items;
}

QLatin1StringView QuestionKindCode(QStringView name)
{
    const QuestionType *type = TypeNamed(name);
    return type ? type->kindCode : noType;
}

QLatin1StringView FieldDataCode(QStringView name)
{
    const QuestionType *type = TypeNamed(name);
    return type ? type->dataCode : noType;
}

} // namespace vellumo
