#include "platform/files.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

Error ErrorOf(const std::error_code &code, const QString &path)
{
    const bool denied = code == std::errc::permission_denied ||
                        code == std::errc::operation_not_permitted ||
                        code == std::errc::read_only_file_system;
    return {QString::fromLocal8Bit(code.message()), path, 0, denied};
}

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

Error TooLarge(const QString &path, const FileLimit &limit)
{
    return {u"The file is larger than any %1 can be"_s.arg(limit.noun), path};
}

Result<QByteArray> ReadWholeFile(const QString &path, const FileLimit &limit)
{
    QFile file(path);
    if (QFileInfo(path).isDir())
        return Error{u"Is a folder"_s, path};
    if (!file.open(QIODevice::ReadOnly))
        return Error{file.errorString(), path};
    QByteArray bytes = file.read(limit.bytes + 1);
    if (file.error() != QFileDevice::NoError)
        return Error{file.errorString(), path};
    if (bytes.size() > limit.bytes)
        return TooLarge(path, limit);
    return bytes;
}

Outcome ReplaceFile(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    // Unbuffered, since commit() would not notice that its last flush failed, as on a full disk.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !WriteAll(file, bytes) ||
        !file.commit())
        return Error{file.errorString(), path};
    return done;
}

Outcome WriteNewFile(const QString &path, const QByteArray &bytes)
{
    // Not QFile: it does not tell a denied permission from other reasons.
    errno = 0;
    std::ofstream file(QFile(path).filesystemFileName(), std::ios::binary | std::ios::trunc);
    file.write(bytes.constData(), bytes.size());
    file.close();
    if (!file)
        return ErrorOf({errno, std::generic_category()}, path);
    return done;
}

Outcome RemoveFile(const QString &path)
{
    std::error_code code;
    std::filesystem::remove(QFile(path).filesystemFileName(), code);
    if (code)
        return ErrorOf(code, path);
    return done;
}

} // namespace vellumo
