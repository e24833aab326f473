#pragma once

#include "readback/finding.h"
#include "readback/palm_database.h"

#include <QList>

namespace vellumo {

/// Appends each resource that no database of so many questions has.
void CheckForOthers(const PalmDatabase &database, qsizetype questions, QList<Finding> &findings);

} // namespace vellumo
