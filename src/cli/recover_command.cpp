#include "cli/recover_command.h"

#include "cli/checked_database.h"
#include "cli/inputs.h"
#include "cli/outputs.h"
#include "cli/review_command.h"
#include "cli/verify_command.h"
#include "model/project_reader.h"
#include "model/project_writer.h"
#include "readback/database_check.h"
#include "readback/recovered_project.h"
#include "readback/recreation_check.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// What a project that was recovered from a database lacks of it.
class WayBack
{
public:
    WayBack(const PalmDatabase &database, const CommandLine &line, const Console &console)
        : m_database(database),
          m_inputName(InputName(line.inputs.first())),
          m_line(line),
          m_console(console)
    {}

    /// Complains of what the project, as its file is read, would bring into another database.
    Exit Check(Project project) const
    {
        bool same = true;
        for (const Notice &notice : ReviewNotices(project, m_inputName, m_line)) {
            // A text that had to be escaped is none to be warned of: it arrives as it did.
            if (notice.kind == "finding"_L1) {
                m_console.Complain(notice);
                same = false;
            }
        }
        same = Tell(CheckDatabase(InOrder(m_database), project)) && same;
        const Exit again = same ? Recreate(project) : Exit::NotPassed;
        return Tell(CheckRecreatedOrder(m_database)) ? again : std::max(again, Exit::NotPassed);
    }

private:
    /// In the order of the file it need not be held against its project, too.
    static PalmDatabase InOrder(PalmDatabase database)
    {
        database.disorder.clear();
        return database;
    }

    bool Tell(const QList<Finding> &findings) const
    {
        ComplainOf(findings, m_inputName, m_console);
        return findings.isEmpty();
    }

    Exit Recreate(const Project &project) const
    {
        const CheckedDatabase made = MakeReviewedDatabase(project, m_inputName, m_line, m_console);
        if (made.exit != Exit::Fine)
            return made.exit;
        const Result<PalmDatabase> recreated = ReadDatabase(made.bytes);
        return recreated && Tell(CheckRecreation(*recreated, m_database)) ? Exit::Fine
                                                                          : Exit::NotPassed;
    }

    const PalmDatabase &m_database;
    const QString m_inputName;
    const CommandLine &m_line;
    const Console &m_console;
};

Ending Recover(const PalmDatabase &database, const QString &target, const CommandLine &line,
               const Console &console)
{
    const QString inputName = InputName(line.inputs.first());
    const Result<QByteArray> file = WriteProject(RecoverProject(database));
    if (!file)
        return Refuse(console, Exit::NotWritten, {file.error().text, inputName});
    // What counts is what the file gives back.
    const Result<Project> project = ReadProject(*file);
    if (!project)
        return Refuse(console, Exit::NotWritten, {project.error().text, inputName});
    for (const Notice &remark : RemarkNotices(database, inputName))
        console.Complain(remark);
    const Exit checked = WayBack(database, line, console).Check(*project);
    Ending ending = Deliver(target, *file, "recovered"_L1, console);
    ending.exit = std::max(ending.exit, checked);
    return ending;
}

Ending RecoverInput(const QString &input, const QString &target, const CommandLine &line,
                    const Console &console)
{
    const Result<QByteArray> bytes = ReadInput(input, databaseLimit, console);
    if (!bytes)
        return Refuse(console, Exit::Unreadable, bytes.error());
    const Result<PalmDatabase> database = ReadDatabase(*bytes);
    if (!database)
        return Refuse(console, Exit::Unreadable, {database.error().text, InputName(input)});
    return Recover(*database, target, line, console);
}

} // namespace

Exit RecoverDatabase(const CommandLine &line, const Console &console)
{
    const QString target = line.Value(Option::Output, u"-"_s);
    if (const Exit checked = CheckOutput(target, line.inputs, console); checked != Exit::Fine)
        return checked;
    return ForInput(line, console, [&](const QString &input) {
        return RecoverInput(input, target, line, console);
    });
}

} // namespace vellumo
