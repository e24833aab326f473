#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QLatin1StringView>
#include <QString>

namespace vellumo {

// Everything that is done to whole files. An error names the file and has the platform's own words.

/// How much of a file is read, and what it is then too large for.
struct FileLimit {
    qint64 bytes;
    QLatin1StringView noun; ///< goes on after "The file is larger than any "
};

/// The whole content of a file. One that is larger than the limit is an error, whatever its size
/// without reading more, and so is a folder.
Result<QByteArray> ReadWholeFile(const QString &path, const FileLimit &limit);

/// The error that something is larger than the limit.
Error TooLarge(const QString &path, const FileLimit &limit);

/// Puts bytes in the place of a file. The old one stays whole, and keeps its name, until the new
/// one is on the disk; the new one has its rights, and its owner where the user may give files
/// away. Links are followed, but none that somebody else laid into a folder where others may write.
/// What is no regular file, such as a device, a pipe or /dev/stdout, is written into; that waits
/// until a pipe has a reader.
Outcome ReplaceFile(const QString &path, const QByteArray &bytes);

/// Whether ReplaceFile would write into what stands there.
bool IsWrittenInto(const QString &path);

/// Creates a file anew with these bytes; what stood there is gone, also where writing then fails. A
/// link, a pipe or a device is removed and nothing written through it.
Outcome WriteNewFile(const QString &path, const QByteArray &bytes);

/// Deletes a file; one that does not exist is no error.
Outcome RemoveFile(const QString &path);

/// Whether two paths lead to one regular file, by whatever names and links.
bool IsSameFile(const QString &one, const QString &other);

} // namespace vellumo
