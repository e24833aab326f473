#pragma once

#include "model/limits.h"

#include <QString>

#include <array>
#include <optional>

namespace vellumo {

/// The ten question types, in the order in which every chooser offers them. A project holds the
/// type of a question as its name, whatever name that is; see TypeNamed.
enum class TypeId {
    Text,
    Numeric,
    PulldownList,
    YesNo,
    Signature,
    Notes,
    DateTime,
    Currency,
    ScannedBarcode,
    Checkboxes,
};
inline constexpr size_t typeCount = 10;

/// The rules of a type whose questions own a list of items.
struct ItemRules {
    Limit count;                    ///< of the items of one question
    QLatin1StringView introduction; ///< what such a list is, in the wizard's words
    bool offersNames;               ///< the built-in names of states and countries
};

/// All that the program knows of a type; how it is written, previewed and drawn stands in tables of
/// the rooms that do so.
struct QuestionType {
    TypeId id;
    QLatin1StringView name;
    /// The kind of handheld control, and the kind of value that the handheld stores, as the script
    /// writes them: "0x" and two digits.
    QLatin1StringView kindCode, dataCode;
    std::optional<ItemRules> items = {}; ///< none = its questions own no items
};

/// A row for each type, in their order.
extern const std::array<QuestionType, typeCount> questionTypes;

/// The type of exactly this name; null where there is none.
const QuestionType *TypeNamed(QStringView name);

/// Whether a question of the type of this name owns items.
bool HasItems(QStringView name);

/// Codes of the type of this name; "0x10" where there is none.
QLatin1StringView QuestionKindCode(QStringView name);
QLatin1StringView FieldDataCode(QStringView name);

/// Whether some rows are one for each type, in their order. For static_assert: a table of another
/// room that lacks a type does not compile.
template <typename Row> consteval bool HasRowPerType(const std::array<Row, typeCount> &rows)
{
    for (size_t i = 0; i < typeCount; ++i)
        if (rows[i].type != static_cast<TypeId>(i))
            return false;
    return true;
}

/// The row of a type in such a table.
template <typename Row>
constexpr const Row &RowOf(const std::array<Row, typeCount> &rows, TypeId type)
{
    return rows[static_cast<size_t>(type)];
}

} // namespace vellumo
