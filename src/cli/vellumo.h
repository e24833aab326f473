#pragma once

#include "cli/console.h"

#include <QStringList>

/// Runs the headless command with the words after its name. Returns its exit status.
int RunVellumo(const QStringList &words, const Console &console);
