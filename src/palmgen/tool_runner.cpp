#include "palmgen/tool_runner.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>

namespace {

constexpr qsizetype mostMessages = 64 * 1024; // in bytes

QString FindTool(const QString &name, const QStringList &folders)
{
    QString found;
    if (!folders.isEmpty()) // to findExecutable an empty list means PATH
        found = QStandardPaths::findExecutable(name, folders);
    if (found.isEmpty())
        found = QStandardPaths::findExecutable(name);
    return found.isEmpty() ? name : found;
}

void KeepMessages(QProcess &process, QByteArray &messages)
{
    const QByteArray more = process.readAllStandardError();
    messages.append(more.first(std::min(more.size(), mostMessages - messages.size())));
}

} // namespace

ToolRun RunAndWait(const ToolCall &call, const ToolLimits &limits)
{
    QProcess process;
    process.setWorkingDirectory(call.workingFolder);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    QByteArray messages;
    QObject::connect(&process, &QProcess::readyReadStandardError,
                     [&] { KeepMessages(process, messages); });
    process.start(FindTool(call.name, limits.folders), call.arguments);

    ToolRun run;
    run.commandLine = call.commandLine;
    run.started = process.waitForStarted(-1);
    if (!run.started) {
        run.whyNotStarted = process.errorString();
        return run;
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (!process.waitForFinished(limits.timeoutSeconds > 0 ? limits.timeoutSeconds * 1000 : -1)) {
        run.timedOut = process.state() != QProcess::NotRunning;
        process.kill();
        process.waitForFinished(-1);
    }
    run.succeeded =
        !run.timedOut && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    run.messages = QString::fromLocal8Bit(messages);
    return run;
}
