#include "model/question_types.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {

const std::array<QLatin1StringView, 10> questionTypes = {
    "Text"_L1,  "Numeric"_L1,   "Pulldown List"_L1, "Yes/No"_L1,          "Signature"_L1,
    "Notes"_L1, "Date/Time"_L1, "Currency"_L1,      "Scanned Barcode"_L1, "Checkboxes"_L1,
};

namespace {

struct TypeCodes {
    QLatin1StringView type, kind, data;
};

constexpr TypeCodes unknownType = {""_L1, "0x10"_L1, "0x10"_L1};

constexpr TypeCodes typeCodes[] = {
    {"Text"_L1, "0x00"_L1, "0x00"_L1},          {"Numeric"_L1, "0x01"_L1, "0x01"_L1},
    {"Yes/No"_L1, "0x02"_L1, "0x00"_L1},        {"Date/Time"_L1, "0x03"_L1, "0x03"_L1},
    {"Pulldown List"_L1, "0x04"_L1, "0x00"_L1}, {"Signature"_L1, "0x05"_L1, "0x02"_L1},
    {"Notes"_L1, "0x06"_L1, "0x02"_L1},         {"Scanned Barcode"_L1, "0x07"_L1, "0x00"_L1},
    {"Currency"_L1, "0x08"_L1, "0x05"_L1},      {"Checkboxes"_L1, "0x09"_L1, "0x04"_L1},
};

const TypeCodes &CodesOf(QStringView type)
{
    const auto found = std::ranges::find_if(
        typeCodes, [type](const TypeCodes &codes) { return codes.type == type; });
    return found == std::end(typeCodes) ? unknownType : *found;
}

} // namespace

bool HasItems(QStringView type)
{
    return type == "Pulldown List"_L1 || type == "Checkboxes"_L1;
}

QLatin1StringView QuestionKindCode(QStringView type)
{
    return CodesOf(type).kind;
}

QLatin1StringView FieldDataCode(QStringView type)
{
    return CodesOf(type).data;
}

} // namespace vellumo
