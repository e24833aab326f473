#include "palmgen/create_messages.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// As much of a text as a box has room for.
QString FirstLines(const QString &text)
{
    constexpr int mostLines = 8, mostCharacters = 800;
    return text.section(u'\n', 0, mostLines - 1).left(mostCharacters);
}

} // namespace

QStringList MessagesOfTools(const CreateReport &report)
{
    QStringList messages;
    for (const ToolRun &run : report.runs)
        if (run.end == ToolEnd::NotStarted)
            messages += u"Error starting task %1\r\n%2"_s.arg(run.commandLine, run.reason);
    return messages;
}

QString MessageOfSuccess(const CreateReport &report, const BuildFolders &folders)
{
    return folders.databases + report.name +
           ".Prc has been created. You may now install it onto your Palm handheld "
           "(using the Palm Install Tool) to use with Vellumo Viewer."_L1;
}

QString MessageOfFailure(const CreateReport &report)
{
    constexpr QLatin1StringView failed = "Error in Vellsheet Creation!"_L1;
    return report.error.permissionDenied ? report.error.text + "\r\n"_L1 + failed : QString(failed);
}

QString ReasonOf(const CreateReport &report)
{
    QStringList reasons;
    if (report.end != CreateEnd::BuildEnded)
        reasons += FirstLines(Describe(report.error));
    for (const ToolRun &run : report.runs)
        if (run.end == ToolEnd::Failed)
            reasons += FirstLines(FaultOf(run, 0));
    return reasons.join(u'\n');
}

QString FaultOf(const ToolRun &run, int timeoutSeconds)
{
    switch (run.end) {
    case ToolEnd::Succeeded:
        break;
    case ToolEnd::NotStarted:
        return u"cannot start %1: %2"_s.arg(run.commandLine, run.reason);
    case ToolEnd::TimedOut:
        return u"did not end within %1 s: %2"_s.arg(QString::number(timeoutSeconds),
                                                    run.commandLine);
    case ToolEnd::Failed:
        const QString fault = u"failed (%1): %2"_s.arg(run.reason, run.commandLine);
        const QString words = run.messages.trimmed();
        return words.isEmpty() ? fault : fault + u'\n' + words;
    }
    return {};
}

} // namespace vellumo
