#pragma once

#include "cli/ending.h"

namespace vellumo {

/// Puts bytes in the place of a file, or on standard output where the name is "-". The ending has
/// this code.
Ending Deliver(const QString &name, const QByteArray &bytes, QLatin1StringView code,
               const Console &console);

/// Refuses to mix an output with objects for a program on standard output.
Exit RefuseMixture(const Console &console);

/// Refuses an output that would take the place of an input which is of another kind, whatever names
/// the two have.
Exit CheckIsNoInput(const QString &output, const QStringList &inputs, const Console &console);

/// Both.
Exit CheckOutput(const QString &output, const QStringList &inputs, const Console &console);

} // namespace vellumo
