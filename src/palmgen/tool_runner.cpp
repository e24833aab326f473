#include "palmgen/tool_runner.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
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

void Keep(QByteArray &messages, const QByteArray &more)
{
    messages.append(more.first(std::min(more.size(), mostMessages - messages.size())));
}

/// How a tool ended that did not succeed.
QString EndingOf(const QProcess &process)
{
    if (process.exitStatus() == QProcess::CrashExit)
        return u"crashed"_s;
    return u"exit status %1"_s.arg(process.exitCode());
}

} // namespace

ToolRun RunAndWait(const ToolCall &call, const ToolLimits &limits)
{
    QProcess process;
    process.setWorkingDirectory(call.workingFolder);
    process.setStandardInputFile(QProcess::nullDevice());
    QByteArray output, messages;
    QObject::connect(&process, &QProcess::readyReadStandardOutput,
                     [&] { Keep(output, process.readAllStandardOutput()); });
    QObject::connect(&process, &QProcess::readyReadStandardError,
                     [&] { Keep(messages, process.readAllStandardError()); });
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
    run.ending = run.succeeded ? QString() : EndingOf(process);
    run.messages = QString::fromLocal8Bit(messages.isEmpty() ? output : messages);
    return run;
}

} // namespace vellumo
