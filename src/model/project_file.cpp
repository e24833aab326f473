#include "model/project_file.h"

#include "model/project_format.h"
#include "model/project_reader.h"
#include "model/project_writer.h"

namespace vellumo {

Result<Project> LoadProject(const QString &path)
{
    const Result<QByteArray> bytes = ReadWholeFile(path, projectLimit);
    if (!bytes)
        return bytes.error();
    Result<Project> project = ReadProject(*bytes);
    if (!project)
        return Error{project.error().text, path, project.error().line};
    return project;
}

Outcome SaveProject(const Project &project, const QString &path)
{
    const Result<QByteArray> bytes = WriteProject(project);
    if (!bytes)
        return Error{bytes.error().text, path};
    return ReplaceFile(path, *bytes);
}

} // namespace vellumo
