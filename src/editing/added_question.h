#pragma once

#include "editing/question_columns.h"
#include "model/clsDataSource.h"
#include "model/question.h"

#include <QList>

namespace vellumo {

/// Why a question cannot be added, and what of it is the cause.
struct QuestionObjection {
    QuestionColumn column;
    QString reason; ///< ready to show
};

/// What becomes of a column name that a question of the project has already.
enum class TakenName {
    Refuse,
    Rename ///< it grows as that of a duplicate does
};

/// All that the wizard would say on its way through the steps, at most once for each of them. Takes
/// the blanks off the ends of the column name and the question, and renames.
QList<QuestionObjection> ObjectionsToAdding(Question &question, const clsDataSource &source,
                                            TakenName takenName);

} // namespace vellumo
