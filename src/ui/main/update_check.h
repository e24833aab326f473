#pragma once

#include "ui/common/environment.h"

#include <QByteArrayView>

#include <chrono>

class QWidget;

namespace vellumo {

/// How long the start waits for the maker's web site at most.
inline constexpr std::chrono::milliseconds updateTimeOut{4000};

/// Whether a version log names a newer version than the running one, such as "1.1.2". Major is the
/// digit before the log's first full stop, minor the digit after it and revision the digit two
/// further; each of them alone makes the log newer by being greater, so 1.0.5 is newer than 1.1.2.
/// A full stop in the revision's place, as in 1.10.3, counts as 0; anything else that is no digit
/// makes the log name no version. Only the first 4096 bytes of the log are looked at.
bool IsNewer(QByteArrayView log, const QString &runningVersion);

/// Asks the maker's web site for its version log and offers the download page if that is newer;
/// nothing else is ever shown. Returns when the site has answered, or the time is over, and the
/// user has. Events are handled meanwhile. The parent of the box may be null.
void CheckForUpdate(QWidget *parent, const Environment &environment,
                    std::chrono::milliseconds timeOut = updateTimeOut);

} // namespace vellumo
