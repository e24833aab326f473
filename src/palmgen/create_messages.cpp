#include "palmgen/create_messages.h"

using namespace Qt::StringLiterals;

namespace vellumo {

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

} // namespace vellumo
