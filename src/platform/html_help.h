#pragma once

#include <QString>

namespace vellumo {

/// Hands a command with its data to the platform's own viewer of compiled help files; owner is the
/// native window that asks, or 0. Only where the platform has such a viewer.
void CallHelpViewer(quintptr owner, const QString &file, int command, quint32 data);

} // namespace vellumo
