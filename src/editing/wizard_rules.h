#pragma once

#include "model/clsDataSource.h"
#include "model/question.h"

#include <optional>

namespace vellumo {

// The wizard asks for type, title, column name, question and items in its steps 1 to 5.

/// Which navigation buttons a step enables.
struct StepButtons {
    std::optional<bool> back; ///< none = it stays as it is
    bool next;
    bool finish;

    bool operator==(const StepButtons &) const = default;
};

/// For a step from 1 to 5.
StepButtons ButtonsOf(int step, QStringView type);

/// Why a step from 1 to 4 cannot be left for the next one, ready to show; empty when it can.
/// Takes the blanks off the ends of the column name (step 3) or the question (step 4).
QString ObjectionToNext(int step, Question &entered, const clsDataSource &source);

/// Why the question cannot be finished on step 4 or 5, likewise. A missing question is told in
/// other words than when the step is left for the next one.
QString ObjectionToFinish(int step, Question &entered);

/// The column name that a question is offered which has none yet.
QString ProposedColumnName(const clsDataSource &source);

/// Appends the question under a fresh Id, and its items if its type has any; it becomes current.
void AppendQuestion(clsDataSource &source, const Question &question);

} // namespace vellumo
