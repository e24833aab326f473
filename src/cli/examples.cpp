#include "cli/examples.h"

#include "model/project_reader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr auto folder = ":/examples"_L1;

} // namespace

QStringList ExampleNames()
{
    QStringList names;
    for (const QString &file : QDir(folder).entryList(QDir::Files, QDir::Name))
        names += QFileInfo(file).completeBaseName();
    return names;
}

Project Example(const QString &name)
{
    QFile file("%1/%2.vmp"_L1.arg(folder, name));
    const bool opened = file.open(QIODevice::ReadOnly);
    Q_ASSERT(opened);
    Result<Project> project = ReadProject(opened ? file.readAll() : QByteArray());
    Q_ASSERT(project);
    return std::move(*project);
}

} // namespace vellumo
