#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace vellumo {

/// Why the platform refused to write or delete a file.
struct FileFault {
    QString description; ///< the platform's own words
    bool permissionDenied = false;
};

/// Creates a file anew with these bytes, replacing what stood there.
std::optional<FileFault> WriteNewFile(const QString &path, const QByteArray &bytes);

/// Deletes a file; one that does not exist is no fault.
std::optional<FileFault> RemoveFile(const QString &path);

} // namespace vellumo
