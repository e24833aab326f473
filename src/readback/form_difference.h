#pragma once

#include "readback/form.h"

#include <QStringList>

namespace vellumo {

/// Each number in which the headers of two forms differ, as "the width of the form is 161 instead
/// of 160".
QStringList HeaderDifferences(const Form &found, const Form &expected);

/// Likewise for two objects of the same kind, number and style. A list may be wider than expected.
QStringList ObjectDifferences(const FormObject &found, const FormObject &expected);

} // namespace vellumo
