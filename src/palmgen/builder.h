#pragma once

#include "palmgen/script_generator.h"
#include "platform/tool_runner.h"

#include <QList>

#include <functional>
#include <optional>

namespace vellumo {

/// Where a database is made.
struct BuildFolders {
    QString work;      ///< for what is needed in between; without a separator at its end
    QString databases; ///< receives the database; with a separator at its end
};

/// What a build did. A tool that failed is no error of the build: its run says so.
struct BuildReport {
    QList<ToolRun> runs = {}; ///< in their order; empty where no tool was used
    Outcome outcome = done;   ///< the error of a file that could not be written or deleted
    Outcome made = done;      ///< why the script became no database, where no tool's run tells it
    std::optional<QByteArray> database = {}; ///< its bytes, of a builder that leaves no file
};

/// How a script becomes the database <folders.databases><name>.prc, or its bytes alone. The name is
/// a plain file name. A script that failed is written as far as it goes, where the builder writes
/// scripts, and nothing is made of it. Whatever happens, an earlier database of that name does not
/// stay beside a report of tools that ran.
using Builder = std::function<BuildReport(const Script &script, const QString &name,
                                          const BuildFolders &folders)>;

} // namespace vellumo
