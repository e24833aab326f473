#pragma once

#include "palmgen/builder.h"

namespace vellumo {

using RunTool = std::function<ToolRun(const ToolCall &call)>;

/// The builder that runs the programs pilrc and build-prc, both of them whatever the first one
/// says. Script and resource file lie in the work folder meanwhile; an earlier database and an
/// earlier resource file are deleted first, resource file and script last.
Builder BuildWithTools(RunTool runTool);

} // namespace vellumo
