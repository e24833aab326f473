#pragma once

#include "cli/console.h"

#include <QStringList>

namespace vellumo {

/// Runs the headless command with the words after its name. Returns its exit status.
/// Whether notices are JSON is decided by the words.
int RunVellumo(const QStringList &words, Console console);

} // namespace vellumo
