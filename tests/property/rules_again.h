#pragma once

#include "model/question.h"
#include "property/random.h"

#include <vector>

namespace vellumo {

// The rules of questions a second time, to hold those of the program against.

bool OwnsItems(const QString &type);

/// The column names of questions.
using Columns = std::vector<QString>;

/// What the wizard must say to Next on a step from 1 to 4; the texts are trimmed already.
QString ExpectedAtNext(int step, const Question &entered, const Columns &columns);

/// What it must say to Finish on step 4 or 5, likewise.
QString ExpectedAtFinish(int step, const Question &entered);

/// What the property dialog must say to OK, likewise; the columns are those of the others.
QString ExpectedInDialog(const Question &edited, const Columns &others);

/// One that often breaks a rule, or nearly.
Question RandomQuestion(Random &random);

} // namespace vellumo
