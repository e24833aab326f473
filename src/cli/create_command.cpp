#include "cli/create_command.h"

#include "cli/inputs.h"
#include "cli/review_command.h"
#include "cli/verify_command.h"
#include "palmgen/build_with_tools.h"
#include "palmgen/create_messages.h"
#include "palmgen/create_pass.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/identifier.h"
#include "platform/work_folder.h"
#include "readback/palm_database.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// A private folder in place of application and projects folder, so that a creation runs from a
/// read-only installation and many times at once.
CreatePlace PrivatePlace(const QString &folder, const CommandLine &line)
{
    const ToolLimits limits = {{ApplicationFolder()}, line.timeoutSeconds};
    return {{.work = folder, .databases = folder + QDir::separator()},
            BuildWithTools([limits](const ToolCall &call) { return RunAndWait(call, limits); })};
}

/// What became of one project, told with the project's name in front.
class Creation
{
public:
    /// Made has the databases of the same call and the inputs that they were made from.
    Creation(const QString &input, const CommandLine &line, const Console &console,
             QHash<QString, QString> &made)
        : m_input(input), m_line(line), m_console(console), m_made(made)
    {}

    Exit Run(const QString &folder)
    {
        Result<Project> project = ReadProjectInput(m_input, m_console);
        if (!project)
            return Refuse(m_console, Exit::Unreadable, project.error());
        const std::vector<Notice> notices = ReviewNotices(*project, InputName(m_input));
        for (const Notice &notice : notices)
            m_console.Complain(notice);
        if (!Passes(notices))
            return Exit::NotPassed;

        const WorkFolder work;
        if (!work.state())
            return Refuse(m_console, Exit::NotWritten, work.state().error());
        const CreateReport report =
            MakeDatabase(*project, PrivatePlace(work.path(), m_line),
                         m_line.identifier.isEmpty() ? MakeIdentifier() : m_line.identifier);
        if (const Exit judged = Judge(report, work.path()); judged != Exit::Fine)
            return judged;
        const QString name = QFileInfo(report.database).fileName();
        return PutInPlace(report.database, QDir(folder).filePath(name), *project);
    }

private:
    Exit Fail(Exit exit, const QString &reason) const
    {
        return Refuse(m_console, exit, {reason, InputName(m_input)});
    }

    Exit Judge(const CreateReport &report, const QString &folder) const
    {
        switch (report.end) {
        case CreateEnd::ProjectRefused:
            return Fail(Exit::NotPassed, report.error.text);
        case CreateEnd::FileRefused:
            return Refuse(m_console, Exit::NotWritten, {report.error.text, folder});
        case CreateEnd::BuildFailed:
            return Fail(Exit::ToolFailed, report.error.text);
        case CreateEnd::BuildEnded:
            break;
        }
        // The first that failed is the cause: each is run whatever the one before it says.
        for (const ToolRun &run : report.runs)
            if (const QString fault = FaultOf(run, m_line.timeoutSeconds); !fault.isEmpty())
                return Fail(Exit::ToolFailed, fault);
        return Exit::Fine;
    }

    Exit PutInPlace(const QString &made, const QString &target, const Project &project) const
    {
        if (!QFileInfo::exists(made))
            return Fail(Exit::ToolFailed, u"the tools left no database"_s);
        const Result<QByteArray> bytes = ReadWholeFile(made, databaseLimit);
        if (!bytes)
            return Fail(Exit::ToolFailed, bytes.error().text);
        if (!Agrees(*bytes, project, InputName(m_input), m_console))
            return Exit::ToolFailed;
        // An older database makes room, that of another project of this call does not.
        if (m_made.contains(target))
            return Fail(Exit::NotWritten, u"its database would take the place of that of %1"_s.arg(
                                              m_made.value(target)));
        if (const Outcome replaced = ReplaceFile(target, *bytes); !replaced)
            return Refuse(m_console, Exit::NotWritten, replaced.error());
        m_made.insert(target, InputName(m_input));
        const QString path = QDir::toNativeSeparators(QFileInfo(target).absoluteFilePath());
        m_console.Tell({.kind = "result"_L1, .code = "created"_L1, .text = path, .file = path});
        return Exit::Fine;
    }

    const QString m_input;
    const CommandLine &m_line;
    const Console &m_console;
    QHash<QString, QString> &m_made;
};

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
        return Creation(input, line, console, made).Run(folder);
    });
}

} // namespace vellumo
