#include "model/project_file.h"

#include "model/project_reader.h"
#include "model/project_writer.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

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

Outcome LoadProject(Project &project)
{
    const QString path = std::exchange(project.path, {});
    const Result<QByteArray> bytes = ReadWholeFile(path);
    if (!bytes)
        return bytes.error();
    Result<Project> read = ReadProject(*bytes);
    if (!read)
        return Error{read.error().text, path, read.error().line};
    project = std::move(*read);
    project.path = path;
    return done;
}

Outcome SaveProject(Project &project, const QString &path)
{
    const Result<QByteArray> bytes = WriteProject(project);
    if (!bytes)
        return Error{bytes.error().text, path};
    const Outcome replaced = ReplaceFile(path, *bytes);
    if (replaced)
        project.path = path;
    return replaced;
}

Result<QByteArray> ReadWholeFile(const QString &path)
{
    QFile file(path);
    if (QFileInfo(path).isDir())
        return Error{u"Is a folder"_s, path};
    if (!file.open(QIODevice::ReadOnly))
        return Error{file.errorString(), path};
    QByteArray bytes = file.read(largestFile + 1);
    if (file.error() != QFileDevice::NoError)
        return Error{file.errorString(), path};
    if (bytes.size() > largestFile)
        return Error{u"The file is larger than any project can be"_s, path};
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

} // namespace vellumo
