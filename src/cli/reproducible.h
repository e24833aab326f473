#pragma once

#include "cli/command_line.h"
#include "model/project_file.h"

#include <optional>

namespace vellumo {

/// What the same project always gives the same database by.
struct Reproduction {
    QString identifier;      ///< 32 upper-case hexadecimal digits
    qint64 secondsSince1970; ///< of both times in the header, as UTC
};

/// How the database of a project, given by its bytes, is made reproducible; nothing where neither
/// --guid nor SOURCE_DATE_EPOCH asks for it. The identifier is that of --guid, or else the first 32
/// digits of the SHA-256 of the project's bytes; the time is SOURCE_DATE_EPOCH, or else the first
/// second of 2000. An error where SOURCE_DATE_EPOCH is no number of seconds that a database can
/// hold.
Result<std::optional<Reproduction>> ReproductionOf(const QByteArray &project,
                                                   const CommandLine &line);

/// Sets both times of a database (docs/palm-formats.md).
void SetTimes(QByteArray &database, qint64 secondsSince1970);

} // namespace vellumo
