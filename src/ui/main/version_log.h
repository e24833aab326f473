#pragma once

#include <QByteArrayView>
#include <QString>

namespace vellumo {

/// Of a version log no more than these first bytes are looked at.
inline constexpr qsizetype versionLogStart = 4096;

/// Whether a version log names a newer version than the running one, such as "1.1.2". Major is the
/// digit before the log's first full stop, minor the digit after it and revision the digit two
/// further; each of them alone makes the log newer by being greater, so 1.0.5 is newer than 1.1.2.
/// A full stop in the revision's place, as in 1.10.3, counts as 0; anything else that is no digit
/// makes the log name no version. Only versionLogStart bytes are looked at.
bool IsNewer(QByteArrayView log, const QString &runningVersion);

} // namespace vellumo
