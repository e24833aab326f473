#pragma once

#include <QStringList>

namespace vellumo {

/// The word of the known ones that somebody may have meant who typed another; empty where none is
/// near.
QString NearMiss(QStringView typed, const QStringList &known);

} // namespace vellumo
