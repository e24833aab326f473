#include "cli/create_command.h"

#include "cli/checked_database.h"
#include "cli/inputs.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/work_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Puts the database of an input into a folder and tells its path. Made has the databases of the
/// same call and the inputs that they were made from.
Exit PutInPlace(const CheckedDatabase &database, const QString &inputName, const QString &folder,
                const Console &console, QHash<QString, QString> &made)
{
    const QString target = QDir(folder).filePath(database.fileName);
    // An older database makes room, that of another project of this call does not.
    if (made.contains(target))
        return Refuse(console, Exit::NotWritten,
                      {u"its database would take the place of that of %1"_s.arg(made.value(target)),
                       inputName});
    if (const Outcome replaced = ReplaceFile(target, database.bytes); !replaced)
        return Refuse(console, Exit::NotWritten, replaced.error());
    made.insert(target, inputName);
    const QString path = QDir::toNativeSeparators(QFileInfo(target).absoluteFilePath());
    console.Tell({.kind = "result"_L1, .code = "created"_L1, .text = path, .file = path});
    return Exit::Fine;
}

} // namespace

Exit CreateDatabases(const CommandLine &line, const Console &console)
{
    const QString folder = line.output.isEmpty() ? ProjectsFolder() : line.output;
    // Only our own folder is made; one that is named has to be there.
    if (line.output.isEmpty() && !MakeProjectsFolder())
        return Refuse(console, Exit::NotWritten, {u"The folder cannot be made"_s, folder});
    if (!QFileInfo(folder).isDir())
        return Refuse(console, Exit::NotWritten, {u"There is no such folder"_s, folder});

    WorkFolder::RemoveLeft();
    QHash<QString, QString> made;
    return ForEachInput(line, console, [&](const QString &input) {
        Result<Project> project = ReadProjectInput(input, console);
        if (!project)
            return Refuse(console, Exit::Unreadable, project.error());
        const CheckedDatabase database =
            MakeCheckedDatabase(*project, InputName(input), line, console);
        return database.exit == Exit::Fine
                   ? PutInPlace(database, InputName(input), folder, console, made)
                   : database.exit;
    });
}

} // namespace vellumo
