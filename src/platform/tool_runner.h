#pragma once

#include <QString>
#include <QStringList>

namespace vellumo {

/// A tool to be run: its arguments are handed over one by one and never pass through a shell.
struct ToolCall {
    QString name; ///< without a folder, such as "pilrc"
    QStringList arguments;
    QString workingFolder;
    QString commandLine; ///< the call as one text, for messages alone
};

enum class ToolEnd {
    Succeeded,  ///< by itself, with exit status 0
    Failed,     ///< by itself, with another exit status, or by a signal
    TimedOut,   ///< by us, because its time was over
    NotStarted, ///< it never ran
};

/// What became of a tool.
struct ToolRun {
    QString commandLine = {};
    ToolEnd end = ToolEnd::NotStarted;
    /// Of one that failed "exit status 3" or "crashed", of one that did not start the platform's
    /// description; empty otherwise.
    QString reason = {};
    QString messages = {}; ///< what it wrote on standard error, or else on standard output
};

/// Where tools are looked for, before PATH, and how long each may take.
struct ToolLimits {
    QStringList folders;
    int timeoutSeconds = 0; ///< 0 = without end
};

/// Starts a tool and waits until it has ended; one whose time is over is ended. Pending window
/// events other than keys and clicks are processed once after the start. Of what the tool writes
/// the first 64 KiB of each stream are kept. A signal that ends this program ends the tool, too.
ToolRun RunAndWait(const ToolCall &call, const ToolLimits &limits);

} // namespace vellumo
