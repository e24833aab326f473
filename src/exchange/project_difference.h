#pragma once

#include "model/project.h"

#include <vector>

namespace vellumo {

enum class DifferenceKind {
    FormChanged,
    QuestionRemoved,
    QuestionAdded,
    QuestionMoved,
    QuestionChanged,
    ItemRemoved,
    ItemAdded,
    ItemMoved,
};

/// One thing in which a project differs from what it was.
struct Difference {
    DifferenceKind kind;
    QLatin1StringView field = {};      ///< by its name to a user; empty = a whole question
    int question = 0;                  ///< position from 1, as it is or else was; 0 = none applies
    QString columnName = {};           ///< of that question, likewise
    QString before = {}, after = {};   ///< the texts, or positions from 1 of a moved question
    int itemBefore = 0, itemAfter = 0; ///< positions of an item from 1; 0 = none, or no item
};

/// What is another in the project as it is, as handheld and collected data know it: the form
/// information, the questions that are gone, and then question by question. What the designer keeps
/// for itself, such as remembered titles, does not count.
///
/// Which question is which is said by question_matching.h.
std::vector<Difference> DifferencesOf(const Project &before, const Project &after);

} // namespace vellumo
