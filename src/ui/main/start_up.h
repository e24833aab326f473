#pragma once

#include "platform/result.h"
#include "ui/common/environment.h"
#include "ui/main/start.h"

#include <QStringList>

#include <functional>

namespace vellumo {

/// The path of the project that a command line names, without the program's own name: all of its
/// words, joined by blanks. A path without the platform's separator lies in the application folder.
/// Empty where the command line is.
QString ProjectOfCommandLine(const QStringList &arguments, const QString &applicationFolder);

/// What happens before the main window is shown. Makes the projects folder; then a project that the
/// command line names is the outcome. Without one, shows the splash with its update check and,
/// where the settings file of the application folder says so, the chooser; an existing project
/// without a path becomes a new one.
/// Where the words are not what was typed, nothing is opened, and a box says so. F1 in the chooser
/// calls showHelp.
///
/// The caller loads start.path, and reviews it in silence, if start.choice is "Existing".
Start StartUp(const Environment &environment, const QStringList &arguments,
              const Outcome &typed = done, const std::function<void()> &showHelp = {});

} // namespace vellumo
