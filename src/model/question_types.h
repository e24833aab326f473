#pragma once

#include <QLatin1StringView>
#include <QString>

#include <array>

namespace vellumo {

/// The names of the ten question types, in the order in which every chooser offers them.
/// A type is held as its name and compared exactly.
extern const std::array<QLatin1StringView, 10> questionTypes;

/// Whether a question of this type owns items: Pulldown List and Checkboxes do.
bool HasItems(QStringView type);

/// The kind of handheld control of a type, as the script writes it: "0x" and two digits.
/// A name that is no type gives "0x10".
QLatin1StringView QuestionKindCode(QStringView type);

/// The kind of value that the handheld stores for a type, written likewise.
QLatin1StringView FieldDataCode(QStringView type);

} // namespace vellumo
