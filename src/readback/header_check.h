#pragma once

#include "readback/finding.h"
#include "readback/palm_database.h"

#include <QList>

namespace vellumo {

/// Appends what is wrong with the type and creator of a database, by which the handheld knows which
/// program it is for.
void CheckKind(const PalmDatabase &database, QList<Finding> &findings);

/// Appends what is wrong with the header of a database that must have this name. The times are not
/// looked at, and neither is what RemarksOn tells.
void CheckHeader(const PalmDatabase &database, const QByteArray &expectedName,
                 QList<Finding> &findings);

/// Appends that its resources stand in another order than that by which they are made.
void CheckOrder(const PalmDatabase &database, QList<Finding> &findings);

/// What the header of a database says of its life since it was made, and is no fault: the time of
/// its last backup, that it is to be backed up, and two numbers that only a handheld writes.
QList<Finding> RemarksOn(const PalmDatabase &database);

} // namespace vellumo
