#pragma once

#include <QString>

namespace vellumo {

/// The folder of the running program, without a separator at its end.
QString ApplicationFolder();

/// "My Vellumo" in the user's documents folder, with a separator at its end; receives the
/// databases.
QString ProjectsFolder();

/// Makes the projects folder, and the documents folder above it, where they are missing. False when
/// that could not be done.
bool MakeProjectsFolder();

/// Where the designer keeps what has to outlive it and is nobody's document, without a separator at
/// its end. It may not exist.
QString StateFolder();

/// A folder of this machine as the path of a drive, which a project's data folder always is. Where
/// folders have no drive letters, drive Z: is the root, as under the common Windows compatibility
/// layer.
QString DataFolderOf(const QString &folder);

} // namespace vellumo
