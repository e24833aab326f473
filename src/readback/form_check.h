#pragma once

#include "readback/finding.h"
#include "readback/form.h"

#include <QList>

namespace vellumo {

/// Appends in what a form differs from the one that a question must have, whose number counts from
/// 1. At the first object that is another one the comparison ends.
void CompareForms(const Form &found, const Form &expected, int question, QList<Finding> &findings);

} // namespace vellumo
