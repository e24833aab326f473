#pragma once

#include "model/project_file.h"
#include "platform/files.h"

#include <QByteArray>
#include <QDateTime>

namespace vellumo {

/// A project as it was at a moment, and the file that it belongs to.
struct Snapshot {
    Project project;
    QString path = {}; ///< full, empty while there is no file
    QDateTime taken = {};
    Fingerprint fingerprint = {}; ///< of that file as it was opened or saved
};

/// Four times a project's file, whose characters take two bytes here.
inline constexpr FileLimit snapshotLimit = {64LL * 1024 * 1024, QLatin1StringView("rescue copy")};

/// The snapshot as bytes. Unlike a project file they hold everything: each character, control
/// characters too, and each number. Only the cursor is not in them.
QByteArray WriteSnapshot(const Snapshot &snapshot);

/// The snapshot that WriteSnapshot made these bytes of; the cursor stands on the first question.
/// Bytes that are not exactly such ones are an error.
Result<Snapshot> ReadSnapshot(const QByteArray &bytes);

} // namespace vellumo
