#pragma once

#include "cli/console.h"

#include <QStringList>

namespace vellumo {

/// Runs the headless command with the words after its name. Returns its exit status.
/// Whether notices are JSON is decided by the words. Where they are not what was typed, nothing is
/// done but to say so.
int RunVellumo(const QStringList &words, Console console, const Outcome &typed = done);

} // namespace vellumo
