#pragma once

#include "model/project.h"
#include "model/result.h"
#include "palmgen/build_runner.h"

namespace vellumo {

/// What a Create pass needs from outside. The texts that it hands over are ready to show.
struct CreateSurroundings {
    BuildPlace place;
    /// A fresh identifier in registry form; empty when none could be made.
    std::function<QString()> makeIdentifier;
    std::function<void(const QString &message)> tellSuccess;
    std::function<void(const QString &message)> tellFailure;
    /// Opens a file or folder with the platform's default action; the result does not matter.
    std::function<void(const QString &path)> open;
};

/// How a Create pass ended, for those who look closer than its messages.
struct CreateReport {
    QList<ToolRun> runs;                ///< empty when the script could not be written
    std::optional<Error> projectFault;  ///< what in the project stood in the way
    std::optional<FileFault> fileFault; ///< or which file did

    bool IsComplete() const { return !projectFault && !fileFault; }
};

/// Writes a project's script into the application folder, builds its database from it and tells the
/// user: of success whatever the tools said, and otherwise "Error in Vellsheet Creation!", preceded
/// by the platform's words where permission was denied. A script that failed is left as far as it
/// was written.
CreateReport CreateVellsheet(const Project &project, const CreateSurroundings &surroundings);

} // namespace vellumo
