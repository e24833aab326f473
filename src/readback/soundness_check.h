#pragma once

#include "readback/finding.h"
#include "readback/palm_database.h"

#include <QList>

namespace vellumo {

/// Checks a database by itself: whether it is of the kind that we make, its resources stand in
/// their order, each can be decoded, none is missing that every database has and none there that no
/// database has, and all of them tell the same number of questions. Empty when nothing is wrong.
QList<Finding> CheckSoundness(const PalmDatabase &database);

} // namespace vellumo
