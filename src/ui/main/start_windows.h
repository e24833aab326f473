#pragma once

#include "ui/common/environment.h"
#include "ui/main/start_up.h"

namespace vellumo {

/// The surroundings of a real start: splash with its update check, chooser, settings file of the
/// application folder, boxes. The environment has to outlive them.
StartSurroundings StartWithWindows(const Environment &environment, const QStringList &arguments);

} // namespace vellumo
