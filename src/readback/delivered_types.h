#pragma once

#include "readback/form.h"

#include <QString>

#include <array>
#include <span>

namespace vellumo {

/// What a database has for a question of one type. This is told here once more, and not taken from
/// what makes databases: a fault there must not hide here.
struct DeliveredType {
    QLatin1StringView name = {}; ///< as a project has it; empty = no type
    quint8 typeCode = 0x10;      ///< in the list of types
    quint8 valueCode = 0x10;     ///< in the list of value kinds
    bool ownsItems = false;
    bool hasSecondControl = false; ///< that is object 3, and the navigation goes through it
    /// What takes the answer, in the order of the form. A list stands here without its items.
    QList<FormObject> objects = {};
};

/// A row for each of the ten types.
extern const std::array<DeliveredType, 10> deliveredTypes;

/// The row of the type of exactly this name, or a row that is no type.
const DeliveredType &TypeOfName(std::span<const DeliveredType> types, QStringView name);

/// The row of the type with this code in the list of types, or a row that is no type.
const DeliveredType &TypeOfCode(std::span<const DeliveredType> types, quint8 code);

/// The name of the type with this code; the code, such as "0x10", where it is that of none.
QString NameOfTypeCode(quint8 code);

} // namespace vellumo
