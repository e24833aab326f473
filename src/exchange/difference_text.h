#pragma once

#include "exchange/project_difference.h"

#include <QStringList>

namespace vellumo {

/// What a difference is about, on one line: "form version", "question 3, STATE: title".
QString Heading(const Difference &difference);

/// The differences as programs show those of text files, without line ends: each heading between
/// "@@", then what was there behind '-' and what is there behind '+'. Items have their position,
/// and those of a question stand below one heading. Texts are in it as they are, line breaks too.
QStringList DifferenceLines(const std::vector<Difference> &differences);

} // namespace vellumo
