#pragma once

#include "model/texts.h"

#include <QString>

namespace vellumo {

/// A text of a project that the handheld does not have or does not show as typed, although the
/// review may pass, or that the project's own file cannot hold.
struct DeliveryWarning {
    QLatin1StringView code; ///< for machines, such as "backslash"; never changes
    TextPlace place;        ///< its question is 0 where none applies
    QString text;           ///< the text at fault as the project has it, whatever is in it
    QString reason;         ///< what happens to it
};

/// The warning as a sentence: question 3, title: "a\b": a backslash starts an escape ...
QString Describe(const DeliveryWarning &warning);

} // namespace vellumo
