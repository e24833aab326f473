#pragma once

#include "cli/command_line.h"
#include "cli/console.h"
#include "model/project.h"

namespace vellumo {

/// A database that agrees with its project, or how its creation ended instead.
struct CheckedDatabase {
    Exit exit = Exit::Fine; ///< any other has been complained of
    QByteArray bytes = {};
    QString fileName = {}; ///< that it has by the name of its form
};

/// Reviews a project and makes its database in a private folder, of which nothing stays. The
/// database is read back and held against the project. A project that does not pass the review is
/// not created. The project's form information is left without the blanks at its ends.
CheckedDatabase MakeCheckedDatabase(Project &project, const QString &inputName,
                                    const CommandLine &line, const Console &console);

/// The same of a project that has passed the review, of which nothing is told then.
CheckedDatabase MakeReviewedDatabase(const Project &project, const QString &inputName,
                                     const CommandLine &line, const Console &console);

} // namespace vellumo
