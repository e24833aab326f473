#include "platform/tool_runner.h"

#include "platform/descriptor_supply.h"
#include "platform/system_error.h"
#include "platform/undoable.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QStringDecoder>

#include <algorithm>
#include <csignal>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr qsizetype mostMessages = 65536; // in bytes

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

/// Our own tools write UTF-8 on every system, others may write in the code page of the place; on
/// Windows lines end in their own way, too.
QString TextOf(const QByteArray &messages)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString text = utf8(messages);
    if (utf8.hasError())
        text = QString::fromLocal8Bit(messages);
    return text.replace("\r\n"_L1, "\n"_L1);
}

/// Empty when the tool succeeded.
QString WhyFailed(const QProcess &process)
{
    if (process.exitStatus() == QProcess::CrashExit)
        return u"crashed"_s;
    return process.exitCode() == 0 ? QString() : u"exit status %1"_s.arg(process.exitCode());
}

/// For another thread, which may not use the QProcess.
void EndProcess([[maybe_unused]] qint64 number)
{
#ifdef Q_OS_UNIX
    if (number > 0)
        kill(static_cast<pid_t>(number), SIGKILL);
#endif
}

/// In the platform's words: the toolkit puts its own in front, and where it could not make its
/// pipes the reason is another one than it says.
QString WhyNotStarted(const QProcess &process)
{
    constexpr int neededForATool = 10;
    return DescriptorsAreLeft(neededForATool)
               ? process.errorString().section(u": "_s, -1)
               : ErrorOf(std::make_error_code(std::errc::too_many_files_open)).text;
}

/// Waits for the tool, and no longer than its time; says how it ended.
ToolEnd Finish(QProcess &process, const ToolLimits &limits)
{
    const int milliseconds = limits.timeoutSeconds > 0 ? limits.timeoutSeconds * 1000 : -1;
    if (!process.waitForFinished(milliseconds) && process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished(-1);
        return ToolEnd::TimedOut;
    }
    return WhyFailed(process).isEmpty() ? ToolEnd::Succeeded : ToolEnd::Failed;
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
    qint64 number = 0;
    const Undoable started(
        [&] {
            process.start(FindTool(call.name, limits.folders), call.arguments);
            number = process.processId();
        },
        [&] { EndProcess(number); });

    ToolRun run = {.commandLine = call.commandLine};
    if (!process.waitForStarted(-1)) {
        run.reason = WhyNotStarted(process);
        return run;
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    run.end = Finish(process, limits);
    if (run.end == ToolEnd::Failed)
        run.reason = WhyFailed(process);
    run.messages = TextOf(messages.isEmpty() ? output : messages);
    return run;
}

} // namespace vellumo
