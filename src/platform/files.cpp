#include "platform/files.h"

#include "platform/system_error.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace vellumo {

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

Outcome RemoveFile(const QString &path)
{
    std::error_code code;
    std::filesystem::remove(QFile(path).filesystemFileName(), code);
    if (code)
        return ErrorOf(code, path);
    return done;
}

bool IsSameFile(const QString &one, const QString &other)
{
    std::error_code code; // one that does not exist is not the same
    const std::filesystem::path path = QFile(one).filesystemFileName();
    return std::filesystem::is_regular_file(path, code) &&
           std::filesystem::equivalent(path, QFile(other).filesystemFileName(), code);
}

} // namespace vellumo
