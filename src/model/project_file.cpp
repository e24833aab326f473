#include "model/project_file.h"

#include "model/project_format.h"
#include "model/project_reader.h"
#include "model/project_writer.h"

#include <QCryptographicHash>
#include <QFileInfo>

namespace vellumo {

Fingerprint FingerprintOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

Result<Project> LoadProject(const QString &path, Fingerprint *fingerprint)
{
    const Result<QByteArray> bytes = ReadWholeFile(path, projectLimit);
    if (!bytes)
        return bytes.error();
    Result<Project> project = ReadProject(*bytes);
    if (!project)
        return Error{project.error().text, path, project.error().line};
    if (fingerprint)
        *fingerprint = FingerprintOf(*bytes);
    return project;
}

Outcome SaveProject(const Project &project, const QString &path, Fingerprint *fingerprint)
{
    const Result<QByteArray> bytes = WriteProject(project);
    if (!bytes)
        return Error{bytes.error().text, path};
    Outcome replaced = ReplaceFile(path, *bytes);
    if (replaced && fingerprint)
        *fingerprint = FingerprintOf(*bytes);
    return replaced;
}

bool HoldsSomethingElse(const QString &path, const Fingerprint &fingerprint)
{
    if (fingerprint.isEmpty() || !QFileInfo(path).isFile())
        return false;
    const Result<QByteArray> bytes = ReadWholeFile(path, projectLimit);
    return !bytes || FingerprintOf(*bytes) != fingerprint;
}

} // namespace vellumo
