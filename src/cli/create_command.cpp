#include "cli/create_command.h"

#include "model/project_file.h"
#include "model/texts.h"
#include "palmgen/create_pass.h"
#include "platform/folders.h"
#include "platform/identifier.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The Create pass with a private folder in place of application and projects folder, so that it
/// runs from a read-only installation and many times at once. Nobody is told anything: the report
/// has it all.
CreateSurroundings PrivateSurroundings(const QString &folder, const QString &identifier)
{
    const auto nobody = [](const QString &) {};
    return {
        .place = {.applicationFolder = folder,
                  .projectsFolder = folder + QDir::separator(),
                  .runTool =
                      [](const ToolCall &call) { return RunAndWait(call, {ApplicationFolder()}); },
                  .reportNotStarted = nobody},
        .makeIdentifier =
            [identifier] { return identifier.isEmpty() ? MakeIdentifier() : identifier; },
        .tellSuccess = nobody,
        .tellFailure = nobody,
        .open = nobody,
    };
}

/// Why a tool left no database, in its own words; nothing when all went well.
std::optional<Error> ToolFault(const ToolRun &run, const QString &project)
{
    if (!run.started)
        return Error{u"cannot start %1: %2"_s.arg(run.commandLine, run.whyNotStarted), project};
    if (!run.succeeded)
        return Error{u"failed: %1\n%2"_s.arg(run.commandLine, run.messages.trimmed()), project};
    return std::nullopt;
}

Exit PutInPlace(const QString &made, const QString &target, const Console &console)
{
    const Result<QByteArray> database = ReadWholeFile(made);
    if (!database)
        return Refuse(console, Exit::ToolFailed, {u"the tools left no database"_s, target});
    if (const Outcome replaced = ReplaceFile(target, *database); !replaced)
        return Refuse(console, Exit::NotWritten, replaced.error());
    console.Tell(QDir::toNativeSeparators(QFileInfo(target).absoluteFilePath()));
    return Exit::Fine;
}

Exit CreateDatabase(const QString &path, const QString &folder, const QString &identifier,
                    const Console &console)
{
    Project project;
    project.path = path;
    if (const Outcome loaded = LoadProject(project); !loaded)
        return Refuse(console, Exit::Unreadable, loaded.error());
    const QTemporaryDir work;
    if (!work.isValid())
        return Refuse(console, Exit::NotWritten, {work.errorString(), QDir::tempPath()});

    const CreateReport report =
        CreateVellsheet(project, PrivateSurroundings(work.path(), identifier));
    if (report.projectFault)
        return Refuse(console, Exit::NotPassed, {report.projectFault->text, path});
    if (report.fileFault)
        return Refuse(console, Exit::NotWritten, {report.fileFault->description, work.path()});
    for (const ToolRun &run : report.runs)
        if (const auto fault = ToolFault(run, path))
            return Refuse(console, Exit::ToolFailed, *fault);

    const QString name = TrimBlanks(project.FormName).toString() + ".prc"_L1;
    return PutInPlace(work.filePath(name), QDir(folder).filePath(name), console);
}

} // namespace

Exit CreateDatabases(const CommandLine &line, const Console &console)
{
    const QString folder = line.output.isEmpty() ? ProjectsFolder() : line.output;
    if (line.output.isEmpty() && !MakeProjectsFolder())
        return Refuse(console, Exit::NotWritten, {u"The folder cannot be made"_s, folder});
    if (!QFileInfo(folder).isDir())
        return Refuse(console, Exit::NotWritten, {u"There is no such folder"_s, folder});

    Exit worst = Exit::Fine;
    for (const QString &project : line.projects)
        worst = std::max(worst, CreateDatabase(project, folder, line.identifier, console));
    return worst;
}
