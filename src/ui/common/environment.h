#pragma once

#include "platform/folders.h"
#include "platform/tool_runner.h"

#include <QString>

#include <chrono>
#include <functional>

namespace vellumo {

/// What the windows need from outside; handed in, so that a test decides all of it.
struct Environment {
    QString applicationFolder; ///< without a separator at its end
    QString dataFolder = {};   ///< stands in where the user may not write in that; empty = nothing
    QString projectsFolder;    ///< with a separator at its end
    QString helpFile;          ///< full path; empty = there is none
    QString siteAddress;       ///< of the maker's web site, without a slash at its end
    QString version;           ///< three numbers and two full stops, such as "1.1.2"
    std::chrono::milliseconds splashDuration{3000};
    QString stateFolder =
        {}; ///< for rescue copies, made where it is missing; empty = there are none
    std::chrono::milliseconds rescueDelay{10'000}; ///< from a change to its rescue copy
    /// A fresh identifier in registry form; empty when none could be made.
    std::function<QString()> makeIdentifier;
    std::function<ToolRun(const ToolCall &call)> runTool;
    /// Opens a file, a folder or a web address with the platform's default action.
    std::function<void(const QString &target)> open;

    /// For the settings file and the script of a Create pass; without a separator at its end.
    QString FolderToWriteIn() const { return WrittenFolder(applicationFolder, dataFolder); }
};

} // namespace vellumo
