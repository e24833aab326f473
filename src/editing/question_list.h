#pragma once

#include "model/clsDataSource.h"
#include "platform/result.h"

namespace vellumo {

// What can be done with the list of questions. The current question is the one on which the cursor
// of the question table stands; every operation leaves it on a row where there is one.

/// Why the current question cannot be worked on, ready to show; empty = it can.
QString RefusalWithoutSelection(const clsDataSource &source);

/// Why no question can be added, ready to show; empty = one can.
QString RefusalWhenFull(const clsDataSource &source);

/// Removes the current question with its items and renumbers those that follow. The next question
/// becomes current, or the last one.
void RemoveQuestion(clsDataSource &source);

// These exchange the contents of two rows and leave the numbers where they are; the moved question
// stays current. False when it could not move any further.
bool MoveQuestionUp(clsDataSource &source);
bool MoveQuestionDown(clsDataSource &source);
/// So many of these, downwards where the number is positive; it stops at an end.
bool MoveQuestion(clsDataSource &source, qsizetype distance);

/// The first of NAME(1), NAME(2), ... that is free, of the name without the blanks at its ends;
/// empty when every free one is too long.
QString FreeColumnName(const clsDataSource &source, const QString &name);
inline constexpr QLatin1StringView nameTooLongToCopy{"Column Name is too long to copy"};

/// Appends a copy of the current question and of its items. The copy's column name is the first of
/// NAME(1), NAME(2), ... that is free; a name that grows too long is the error. The current
/// question stays so.
Outcome DuplicateQuestion(clsDataSource &source);

} // namespace vellumo
