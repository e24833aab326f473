#pragma once

#include "readback/finding.h"
#include "readback/palm_database.h"

#include <QList>

namespace vellumo {

/// Appends what is wrong with the type and creator of a database, by which the handheld knows which
/// program it is for.
void CheckKind(const PalmDatabase &database, QList<Finding> &findings);

/// Appends what is wrong with the header of a database that must have this name. The times are not
/// looked at: they are those of its making.
void CheckHeader(const PalmDatabase &database, const QByteArray &expectedName,
                 QList<Finding> &findings);

} // namespace vellumo
