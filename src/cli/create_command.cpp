#include "cli/create_command.h"

#include "cli/checked_database.h"
#include "cli/inputs.h"
#include "cli/outputs.h"
#include "cli/reproducible.h"
#include "platform/files.h"
#include "platform/folders.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

bool NamesAFile(const QString &output)
{
    return output == "-"_L1 ||
           (output.endsWith(".prc"_L1, Qt::CaseInsensitive) && !QFileInfo(output).isDir());
}

/// The folder for databases that have the names of their forms: the user's own, or the named one,
/// which is made where the name ends as only that of a folder does.
Result<QString> DatabaseFolder(const QString &output)
{
    const QString folder = output.isEmpty() ? ProjectsFolder() : output;
    const bool mayMake =
        output.isEmpty() || output.endsWith(u'/') || output.endsWith(QDir::separator());
    if (mayMake && !(output.isEmpty() ? MakeProjectsFolder() : QDir().mkpath(folder)))
        return Error{u"The folder cannot be made"_s, folder};
    if (!QFileInfo(folder).isDir())
        return Error{u"There is no such folder"_s, folder};
    return folder;
}

/// Puts the database of an input in its place and tells its path. Made has the databases of the
/// same call and the inputs that they were made from.
Ending PutInPlace(const QByteArray &database, const QString &target, const QString &inputName,
                  const Console &console, QHash<QString, QString> &made)
{
    // An older database makes room, that of another project of this call does not.
    if (made.contains(target))
        return Refuse(console, Exit::NotWritten,
                      {u"its database would take the place of that of %1"_s.arg(made.value(target)),
                       inputName});
    if (const Outcome replaced = ReplaceFile(target, database); !replaced)
        return Refuse(console, Exit::NotWritten, replaced.error());
    made.insert(target, inputName);
    const QString path = QDir::toNativeSeparators(QFileInfo(target).absoluteFilePath());
    Ending ending(Exit::Fine, "created"_L1, path);
    ending.shown = path;
    ending.made = path;
    return ending;
}

CheckedDatabase MakeOne(const QString &input, const CommandLine &line, const Console &console)
{
    QByteArray bytes;
    Result<Project> project = ReadProjectInput(input, console, &bytes);
    if (!project)
        return {Refuse(console, Exit::Unreadable, project.error())};
    const auto reproduction = ReproductionOf(bytes, line);
    if (!reproduction)
        return {RefuseUse(console, reproduction.error().text)};
    if (!*reproduction)
        return MakeCheckedDatabase(*project, InputName(input), line, console);

    CommandLine reproducible = line;
    reproducible.options[Option::Identifier] = (*reproduction)->identifier;
    CheckedDatabase database =
        MakeCheckedDatabase(*project, InputName(input), reproducible, console);
    if (database.exit == Exit::Fine)
        SetTimes(database.bytes, (*reproduction)->secondsSince1970);
    return database;
}

} // namespace

Exit CreateDatabases(const CommandLine &line, const Console &console)
{
    const QString output = line.Value(Option::Output);
    const bool toFile = NamesAFile(output);
    if (console.json && output == "-"_L1)
        return RefuseMixture(console);
    if (toFile && line.inputs.size() > 1)
        return RefuseUse(console, u"-o names one file for several projects; name a folder."_s);
    Result<QString> folder = QString();
    if (!toFile && !(folder = DatabaseFolder(output)))
        return Refuse(console, Exit::NotWritten, folder.error());

    QHash<QString, QString> made;
    return ForEachInput(line, console, [&](const QString &input) -> Ending {
        const CheckedDatabase database = MakeOne(input, line, console);
        if (database.exit != Exit::Fine)
            return database.exit;
        if (output == "-"_L1)
            return Deliver(output, database.bytes, "created"_L1, console);
        const QString target = toFile ? output : QDir(*folder).filePath(database.fileName);
        if (const Exit checked = CheckIsNoInput(target, line.inputs, console);
            checked != Exit::Fine)
            return checked;
        return PutInPlace(database.bytes, target, InputName(input), console, made);
    });
}

} // namespace vellumo
