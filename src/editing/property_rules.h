#pragma once

#include "model/question.h"

namespace vellumo {

class clsDataSource;

/// Takes the blanks from both ends of title and question; a column name keeps its own.
void TrimEdited(Question &edited);

/// All that stands against storing this in place of the current question, ready to show in one
/// box; empty when nothing does. The question counts as trimmed already.
QString ObjectionsTo(const Question &edited, const clsDataSource &source);

/// Stores this in the current question, which there must be. It keeps its place and identity.
void ReplaceCurrentQuestion(clsDataSource &source, const Question &edited);

} // namespace vellumo
