#pragma once

#include "exchange/row_matching.h"
#include "model/clsDataSource.h"

namespace vellumo {

/// Which questions of a project as it was are which of it as it is: those of one Id that have a
/// column name, a title or a question text in common, and else those of one column name.
RowMatching MatchQuestions(const QList<QuestionRow> &before, const QList<QuestionRow> &after);

} // namespace vellumo
