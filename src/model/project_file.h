#pragma once

#include "model/project.h"
#include "platform/result.h"

namespace vellumo {

/// What the user is told of a file that cannot be read as a project, whatever the reason.
inline constexpr QLatin1StringView invalidProjectFile{"This file is not a valid VMP file."};

/// The project that a file holds; the cursor stands on its first question. The error has file, line
/// and reason, for those who want more than invalidProjectFile.
Result<Project> LoadProject(const QString &path);

/// Writes a project to a file. On failure an older file of that name is as it was; the error's text
/// is the platform's own or names the character that cannot be written.
Outcome SaveProject(const Project &project, const QString &path);

} // namespace vellumo
