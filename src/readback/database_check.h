#pragma once

#include "model/project.h"
#include "readback/delivered_types.h"
#include "readback/finding.h"
#include "readback/palm_database.h"

#include <QList>

namespace vellumo {

/// Holds a database against the project that it should have been made from: its header, which
/// resources it has, and every resource to its last byte. Empty when nothing differs.
///
/// Not compared: the times, the two numbers of a handheld, and the identifier beyond its shape.
/// Only a test has reason to hand in another table of types.
QList<Finding> CheckDatabase(const PalmDatabase &database, const Project &project,
                             std::span<const DeliveredType> types = deliveredTypes);

} // namespace vellumo
