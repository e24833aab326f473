#pragma once

#include "cli/command_line.h"
#include "cli/console.h"
#include "model/project.h"
#include "readback/finding.h"

#include <QList>

namespace vellumo {

/// Complains of each thing that is not right in a database, with the input's name in front.
void ComplainOf(const QList<Finding> &findings, const QString &inputName, const Console &console);

/// Whether a database's bytes are what its project asks for. Complains of each thing that is not,
/// with the input's name in front.
bool Agrees(const QByteArray &database, const Project &project, const QString &inputName,
            const Console &console);

/// Reads a database back and tells what is wrong with it, by itself or, where a project is named
/// after it, against that.
Exit VerifyDatabase(const CommandLine &line, const Console &console);

} // namespace vellumo
