#include "cli/checked_database.h"

#include "cli/build_in_process.h"
#include "cli/named_programs.h"
#include "cli/review_command.h"
#include "cli/verify_command.h"
#include "palmgen/build_with_tools.h"
#include "palmgen/create_messages.h"
#include "palmgen/create_pass.h"
#include "platform/files.h"
#include "platform/identifier.h"
#include "platform/work_folder.h"
#include "readback/palm_database.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// A private folder in place of application and projects folder, so that a creation runs from a
/// read-only installation and many times at once.
CreatePlace PrivatePlace(const QString &folder, const CommandLine &line)
{
    const auto run = [&line](const ToolCall &call) { return RunNamed(call, line); };
    return {{.work = folder, .databases = folder + QDir::separator()}, BuildWithTools(run)};
}

/// What became of one project, told with the project's name in front.
class Creation
{
public:
    Creation(const Project &project, const QString &inputName, const CommandLine &line,
             const Console &console)
        : m_project(project), m_inputName(inputName), m_line(line), m_console(console)
    {}

    CheckedDatabase Run()
    {
        if (!NamesPrograms(m_line))
            return Make({{}, BuildInProcess}, {});
        WorkFolder::RemoveLeft();
        const WorkFolder work;
        if (!work.state())
            return {Refuse(m_console, Exit::NotWritten, work.state().error())};
        return Make(PrivatePlace(work.path(), m_line), work.path());
    }

private:
    CheckedDatabase Make(const CreatePlace &place, const QString &folder) const
    {
        const CreateReport report = MakeDatabase(
            m_project, place,
            m_line.Has(Option::Identifier) ? m_line.Value(Option::Identifier) : MakeIdentifier());
        if (const Exit judged = Judge(report, folder); judged != Exit::Fine)
            return {judged};
        if (report.bytes)
            return ReadBack(*report.bytes, report.database);
        if (!QFileInfo::exists(report.database))
            return {Fail(Exit::ToolFailed, u"the tools left no database"_s)};
        const Result<QByteArray> bytes = ReadWholeFile(report.database, databaseLimit);
        if (!bytes)
            return {Fail(Exit::ToolFailed, bytes.error().text)};
        return ReadBack(*bytes, report.database);
    }

    Exit Fail(Exit exit, const QString &reason) const
    {
        return Refuse(m_console, exit, {reason, m_inputName});
    }

    /// In the words of a tool, which may have several lines.
    Exit FailOfTool(const QString &fault) const
    {
        m_console.Complain({.kind = "error"_L1,
                            .code = "tool-failed"_L1,
                            .text = fault,
                            .shown = VisibleLines(fault),
                            .file = m_inputName});
        return Exit::ToolFailed;
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
            if (const QString fault = FaultOf(run, m_line.TimeoutSeconds()); !fault.isEmpty())
                return FailOfTool(fault);
        return Exit::Fine;
    }

    CheckedDatabase ReadBack(const QByteArray &bytes, const QString &path) const
    {
        if (!Agrees(bytes, m_project, m_inputName, m_console))
            return {Exit::ToolFailed};
        return {Exit::Fine, bytes, QFileInfo(path).fileName()};
    }

    const Project &m_project;
    const QString m_inputName;
    const CommandLine &m_line;
    const Console &m_console;
};

} // namespace

CheckedDatabase MakeCheckedDatabase(Project &project, const QString &inputName,
                                    const CommandLine &line, const Console &console)
{
    const std::vector<Notice> notices = ReviewNotices(project, inputName, line);
    for (Notice notice : notices) {
        notice.advice = notice.kind != "finding"_L1; // a creation goes on
        console.Complain(notice);
    }
    if (!Passes(notices))
        return {Exit::NotPassed};
    return MakeReviewedDatabase(project, inputName, line, console);
}

CheckedDatabase MakeReviewedDatabase(const Project &project, const QString &inputName,
                                     const CommandLine &line, const Console &console)
{
    return Creation(project, inputName, line, console).Run();
}

} // namespace vellumo
