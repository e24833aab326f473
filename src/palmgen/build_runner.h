#pragma once

#include "palmgen/tool_runner.h"
#include "platform/files.h"

#include <QList>

#include <functional>
#include <optional>

namespace vellumo {

/// Where a build takes place and what it uses.
struct BuildPlace {
    QString applicationFolder; ///< holds the script; without a separator at its end
    QString projectsFolder;    ///< receives the database; with a separator at its end
    std::function<ToolRun(const ToolCall &call)> runTool;
    /// Told, ready to show, of a tool that did not start; the build then goes on.
    std::function<void(const QString &message)> reportNotStarted;
};

/// What a build did. A tool that failed is no fault of the build: its run says so.
struct BuildReport {
    QList<ToolRun> runs;
    std::optional<FileFault> fault; ///< a file that could not be deleted; ended the build
};

/// Turns <applicationFolder>/<name>.rcp into <projectsFolder>/<name>.prc with pilrc and build-prc.
/// Deletes an earlier database and an earlier resource file first, resource file and script last.
BuildReport Build(const QString &name, const BuildPlace &place);

} // namespace vellumo
