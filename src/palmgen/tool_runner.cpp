#include "palmgen/tool_runner.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>

namespace {

QString FindTool(const QString &name, const QStringList &folders)
{
    QString found;
    if (!folders.isEmpty()) // to findExecutable an empty list means PATH
        found = QStandardPaths::findExecutable(name, folders);
    if (found.isEmpty())
        found = QStandardPaths::findExecutable(name);
    return found.isEmpty() ? name : found;
}

} // namespace

ToolRun RunAndWait(const ToolCall &call, const QStringList &folders)
{
    QProcess process;
    process.setWorkingDirectory(call.workingFolder);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(FindTool(call.name, folders), call.arguments);

    ToolRun run;
    run.commandLine = call.commandLine;
    run.started = process.waitForStarted(-1);
    if (!run.started) {
        run.whyNotStarted = process.errorString();
        return run;
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    process.waitForFinished(-1);
    run.succeeded = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    run.messages = QString::fromLocal8Bit(process.readAllStandardError());
    return run;
}
