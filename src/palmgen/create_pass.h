#pragma once

#include "model/project.h"
#include "palmgen/builder.h"

namespace vellumo {

/// Where and how a project becomes a database.
struct CreatePlace {
    BuildFolders folders;
    Builder build;
};

/// How far a Create pass came.
enum class CreateEnd {
    BuildEnded,     ///< to the end of the build; whether the tools succeeded, their runs tell
    ProjectRefused, ///< the project is not one that a script can be made of
    FileRefused,    ///< a file could not be written or deleted
    BuildFailed,    ///< the build itself refused the script
};

/// What a Create pass did.
struct CreateReport {
    CreateEnd end = CreateEnd::BuildEnded;
    Error error = {};                     ///< why it came no further
    QList<ToolRun> runs = {};             ///< empty when no tool was to run
    QString name = {};                    ///< of the database, without its folder and ending
    QString database = {};                ///< the path of its file
    std::optional<QByteArray> bytes = {}; ///< of it, where the build leaves no file
};

/// Makes the database of a project in the place: its name is the form name without the blanks at
/// its ends, which must be a plain file name. The identifier is one in registry form, its digits
/// alone, or empty. Nobody is told anything: the report has it all.
CreateReport MakeDatabase(const Project &project, const CreatePlace &place,
                          const QString &identifier);

} // namespace vellumo
