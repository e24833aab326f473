#pragma once

#include <QByteArrayView>
#include <QString>

namespace vellumo {

/// Bytes of a database for a message: in single quotes, with everything that cannot be shown, or
/// looks like a blank and is none, as \x and two digits. No foreign file reaches a terminal's
/// controls through it.
QString Shown(QByteArrayView bytes);

/// Two texts that differ, as "'abc' instead of 'abd'". Of long ones only what is around the first
/// difference is shown, with dots where something was left out.
QString ShownDifference(QByteArrayView found, QByteArrayView expected);

} // namespace vellumo
