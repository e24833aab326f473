#include "platform/files.h"
#include "platform/system_error.h"

#include <QFile>
#include <QSaveFile>

#include <cerrno>
#include <fstream>

namespace vellumo {
namespace {

/// Writes on after a part, so that what stopped it shows as the file's error.
bool WriteAll(QSaveFile &file, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const qint64 written = file.write(bytes.data(), bytes.size());
        if (written <= 0)
            return false;
        bytes = bytes.sliced(written);
    }
    return true;
}

} // namespace

Outcome ReplaceFile(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    // Unbuffered, since commit() would not notice that its last flush failed, as on a full disk.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !WriteAll(file, bytes) ||
        !file.commit())
        return Error{file.errorString(), path};
    return done;
}

bool IsWrittenInto(const QString &)
{
    return false;
}

Outcome WriteNewFile(const QString &path, const QByteArray &bytes)
{
    // Not QFile: it does not tell a denied permission from other reasons.
    errno = 0;
    std::ofstream file(QFile(path).filesystemFileName(), std::ios::binary | std::ios::trunc);
    file.write(bytes.constData(), bytes.size());
    file.close();
    return file ? done : Outcome(LastError(path));
}

} // namespace vellumo
