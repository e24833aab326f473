#pragma once

#include <QString>

namespace vellumo {

/// The folder of the running program, without a separator at its end.
QString ApplicationFolder();

/// Where the program writes what belongs beside it: the application folder, or where the user may
/// not write there, a folder of the user's own that stands in, without a separator at its end. That
/// one is made where it is missing, closed to everybody else; where that fails, writing into it
/// tells why. Without a stand-in (an empty one) it is the application folder in any case.
QString WrittenFolder(const QString &application, const QString &standIn);

/// "My Vellumo" in the user's documents folder, with a separator at its end; receives the
/// databases.
QString ProjectsFolder();

/// Makes the projects folder, and the documents folder above it, where they are missing. False when
/// that could not be done.
bool MakeProjectsFolder();

/// Where the designer keeps what has to outlive it and is nobody's document, without a separator at
/// its end. It may not exist.
QString StateFolder();

/// What stands in for the application folder: the user's data folder of the designer, without a
/// separator at its end. It may not exist.
QString DataFolder();

/// A folder of this machine as the path of a drive, which a project's data folder always is. Where
/// folders have no drive letters, drive Z: is the root, as under the common Windows compatibility
/// layer.
QString DataFolderOf(const QString &folder);

} // namespace vellumo
