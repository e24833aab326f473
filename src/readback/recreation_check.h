#pragma once

#include "readback/finding.h"
#include "readback/palm_database.h"

#include <QList>

namespace vellumo {

/// Holds a database that was created again against the one that its project was recovered from.
/// Empty where every resource and the header are the same but for what RemarksOn tells, the times
/// and the identifier.
QList<Finding> CheckRecreation(const PalmDatabase &recreated, const PalmDatabase &database);

/// What no database that is created again can have: its resources in another order. Empty where
/// they stand in theirs.
QList<Finding> CheckRecreatedOrder(const PalmDatabase &database);

} // namespace vellumo
