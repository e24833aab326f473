#include "cli/verify_command.h"

#include "cli/inputs.h"
#include "readback/database_check.h"
#include "readback/header_check.h"
#include "readback/soundness_check.h"
#include "validation/project_review.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

Notice NoticeOf(const Finding &finding, const QString &inputName)
{
    return {.kind = "finding"_L1,
            .code = finding.code,
            .text = finding.text,
            .shown = Visible(finding.text),
            .file = inputName,
            .step = StepOf(finding.place),
            .question = finding.place.question,
            .field = finding.place.field};
}

Ending TellFindings(const QList<Finding> &findings, const std::vector<Notice> &remarks,
                    const QString &inputName, const Console &console)
{
    for (const Finding &finding : findings)
        console.Tell(NoticeOf(finding, inputName));
    for (const Notice &remark : remarks)
        console.Tell(remark);
    if (findings.isEmpty())
        return {Exit::Fine, "verified"_L1, u"The database is as it should be."_s};
    return {Exit::NotPassed, "not-verified"_L1, u"The database is not as it should be."_s};
}

Ending Verify(const QString &input, const CommandLine &line, const Console &console)
{
    const Result<QByteArray> bytes = ReadInput(input, databaseLimit, console);
    if (!bytes)
        return Refuse(console, Exit::Unreadable, bytes.error());
    const Result<PalmDatabase> database = ReadDatabase(*bytes);
    if (!database)
        return Refuse(console, Exit::Unreadable, {database.error().text, InputName(input)});
    const std::vector<Notice> remarks = RemarkNotices(*database, InputName(input));
    if (line.inputs.size() == 1)
        return TellFindings(CheckSoundness(*database), remarks, InputName(input), console);

    Result<Project> project = ReadProjectInput(line.inputs[1], console);
    if (!project)
        return Refuse(console, Exit::Unreadable, project.error());
    ReviewProject(*project); // takes the blanks from the form information, as before a creation
    return TellFindings(CheckDatabase(*database, *project), remarks, InputName(input), console);
}

} // namespace

void ComplainOf(const QList<Finding> &findings, const QString &inputName, const Console &console)
{
    for (const Finding &finding : findings)
        console.Complain(NoticeOf(finding, inputName));
}

std::vector<Notice> RemarkNotices(const PalmDatabase &database, const QString &inputName)
{
    std::vector<Notice> notices;
    for (const Finding &remark : RemarksOn(database)) {
        Notice notice = NoticeOf(remark, inputName);
        notice.kind = "remark"_L1;
        notice.shown.prepend("remark: "_L1);
        notice.advice = true;
        notices.push_back(notice);
    }
    return notices;
}

bool Agrees(const QByteArray &database, const Project &project, const QString &inputName,
            const Console &console)
{
    const Result<PalmDatabase> read = ReadDatabase(database);
    if (!read) {
        Refuse(console, Exit::ToolFailed,
               {u"the tools left a damaged database: %1"_s.arg(read.error().text), inputName});
        return false;
    }
    const QList<Finding> findings = CheckDatabase(*read, project);
    ComplainOf(findings, inputName, console);
    return findings.isEmpty();
}

Exit VerifyDatabase(const CommandLine &line, const Console &console)
{
    return ForInput(line, console,
                    [&](const QString &input) { return Verify(input, line, console); });
}

} // namespace vellumo
