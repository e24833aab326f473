#pragma once

#include "readback/finding.h"
#include "readback/palm_database.h"

#include <QList>

namespace vellumo {

/// Holds a database that was created again against the one that its project was recovered from.
/// Empty where every byte is the same but for the times, the mark of a backup and the identifier.
QList<Finding> CheckRecreation(const PalmDatabase &recreated, const PalmDatabase &database);

} // namespace vellumo
