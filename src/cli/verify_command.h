#pragma once

#include "cli/command_line.h"
#include "cli/console.h"
#include "model/project.h"
#include "readback/finding.h"
#include "readback/palm_database.h"

#include <QList>

#include <vector>

namespace vellumo {

/// Complains of each thing that is not right in a database, with the input's name in front.
void ComplainOf(const QList<Finding> &findings, const QString &inputName, const Console &console);

/// What has been remarked on a database, as notices that are no part of the exit status.
std::vector<Notice> RemarkNotices(const PalmDatabase &database, const QString &inputName);

/// Whether a database's bytes are what its project asks for. Complains of each thing that is not,
/// with the input's name in front.
bool Agrees(const QByteArray &database, const Project &project, const QString &inputName,
            const Console &console);

/// Reads a database back and tells what is wrong with it, by itself or, where a project is named
/// after it, against that; and what is to be remarked.
Exit VerifyDatabase(const CommandLine &line, const Console &console);

} // namespace vellumo
