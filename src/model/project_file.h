#pragma once

#include "model/project.h"
#include "model/result.h"

namespace vellumo {

/// What the user is told of a file that cannot be read as a project, whatever the reason.
inline constexpr QLatin1StringView invalidProjectFile{"This file is not a valid VMP file."};

/// In bytes; four times the file of 128 questions with 255 items each and all texts of the largest
/// length. A larger file is no project, and no database either.
inline constexpr qint64 largestFile = 16 * 1024 * 1024;

/// Reads the file at project.path into the project. On failure nothing of the file is loaded and
/// the path is empty; the error has file, line and reason, for those who want more than
/// invalidProjectFile.
Outcome LoadProject(Project &project);

/// Writes the project to a file, which becomes project.path. On failure an older file of that name
/// and project.path are as they were; the error's text is the platform's own or names the character
/// that cannot be written.
Outcome SaveProject(Project &project, const QString &path);

/// The whole content of a file. Fails on a file that is larger than largestFile, whatever its size
/// without reading more.
Result<QByteArray> ReadWholeFile(const QString &path);

/// Puts bytes in the place of a file, which stays whole until they are all on disk.
Outcome ReplaceFile(const QString &path, const QByteArray &bytes);

} // namespace vellumo
