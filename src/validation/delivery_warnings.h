#pragma once

#include "model/project.h"
#include "model/texts.h"

#include <vector>

namespace vellumo {

/// A text of a project that does not arrive on the handheld as typed, although the review may pass,
/// or that the project's own file cannot hold.
struct DeliveryWarning {
    QLatin1StringView code; ///< for machines, such as "backslash"; never changes
    TextPlace place;        ///< its question is 0 where none applies
    QString text;           ///< the text at fault as the project has it, whatever is in it
    QString reason;         ///< what happens to it
};

/// The warning as a sentence: question 3, title: "a\b": a backslash starts an escape ...
QString Describe(const DeliveryWarning &warning);

/// What will not arrive as typed: first the form information, then question by question its
/// texts, its links and its items, then the items that no list question owns; items that share an
/// Id are held against the first list question with that Id. Last what makes the file unreadable.
///
/// Takes time in proportion to questions and items.
std::vector<DeliveryWarning> FindDeliveryWarnings(const Project &project);

} // namespace vellumo
