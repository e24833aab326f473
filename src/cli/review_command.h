#pragma once

#include "cli/command_line.h"
#include "cli/console.h"
#include "model/project.h"

#include <vector>

namespace vellumo {

/// What is wrong with a project, as the designer's error list has it (kind "finding"), and after
/// that what would not arrive on the handheld as typed, and what its screen would not show so (kind
/// "warning"; the latter is advice). With --strict they are findings all. The project's form
/// information is left without the blanks at its ends.
std::vector<Notice> ReviewNotices(Project &project, const QString &inputName,
                                  const CommandLine &line);

/// Whether a reviewed project may be created; warnings do not stand in the way.
bool Passes(const std::vector<Notice> &notices);

/// Tells the notices of each project. All but advice give Exit::NotPassed, warnings too.
Exit ReviewProjects(const CommandLine &line, const Console &console);

} // namespace vellumo
