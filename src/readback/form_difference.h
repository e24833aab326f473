#pragma once

#include "readback/form.h"

#include <QStringList>

namespace vellumo {

/// Each number in which the headers of two forms differ, as "the width of the form is 161 instead
/// of 160".
QStringList HeaderDifferences(const Form &found, const Form &expected);

/// Whether two objects are of the same kind, number and style: that is what describes them.
bool AreAlike(const FormObject &found, const FormObject &expected);

/// As HeaderDifferences for two objects that are alike, but for their texts and items. The
/// width of a list counts only where its items are those that are expected.
QStringList ObjectDifferences(const FormObject &found, const FormObject &expected);

} // namespace vellumo
