#pragma once

#include <QStringList>

#include <iosfwd>

namespace vellumo {

/// Writes a help file: OUTPUT FOLDER NAME..., the names of the files below the folder. Gives the
/// exit status: 0 = written, 1 = not, with the reason on err.
int MakeHelp(const QStringList &arguments, std::ostream &err);

} // namespace vellumo
