#pragma once

#include "palmgen/create_pass.h"

#include <QStringList>

namespace vellumo {

// What a person is told of a Create pass, ready to show.

/// A message for each tool that did not start, in the order of the runs.
QStringList MessagesOfTools(const CreateReport &report);

/// That the database has been created, and where; whatever the tools said. For a pass that came to
/// the end of its build.
QString MessageOfSuccess(const CreateReport &report, const BuildFolders &folders);

/// That the creation failed, preceded by the platform's words where permission was denied. For a
/// pass that did not come to that end.
QString MessageOfFailure(const CreateReport &report);

/// Why it failed, to stand below a message: the error of a pass that did not come to its end, and
/// what the tools that failed said, in a few lines each. Empty where nothing failed.
QString ReasonOf(const CreateReport &report);

/// How a tool failed, with its own words where it had any; empty where it succeeded.
QString FaultOf(const ToolRun &run, int timeoutSeconds);

} // namespace vellumo
