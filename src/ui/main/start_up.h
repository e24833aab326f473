#pragma once

#include "model/basRegistry.h"

#include <QStringList>

#include <functional>

namespace vellumo {

// What happens before the main window is shown. The program hands the outcome on to it:
//
//     const Start start = StartUp(StartWithWindows(environment, application.arguments().mid(1)));
//
// and the main window loads start.path, and reviews it in silence, if start.choice is "Existing".

inline constexpr QLatin1StringView newProject{"New"};
inline constexpr QLatin1StringView existingProject{"Existing"};

/// What the main window opens with.
struct Start {
    QString choice = newProject; ///< newProject or existingProject
    QString path = {};           ///< of the project file; empty for a new project
};

/// What a start needs from outside.
struct StartSurroundings {
    QString applicationFolder; ///< without a separator at its end
    QStringList arguments;     ///< without the program's own name
    std::function<void()> makeProjectsFolder;
    std::function<void()> showSplash; ///< returns when the splash has closed
    std::function<ShowOpenForm()> readShowOpenForm;
    std::function<Start()> showChooser; ///< the selected option, and the path chosen last
    std::function<void(const QString &message)> tell;
};

/// Makes the projects folder, then takes the arguments, joined by blanks, for the path of one
/// project; a path without the platform's separator lies in the application folder. Without any,
/// shows the splash and, where the settings say so, the chooser. An existing project without a path
/// becomes a new one.
Start StartUp(const StartSurroundings &surroundings);

} // namespace vellumo
