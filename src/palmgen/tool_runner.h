#pragma once

#include <QString>
#include <QStringList>

/// A tool to be run: its arguments are handed over one by one and never pass through a shell.
struct ToolCall {
    QString name; ///< without a folder, such as "pilrc"
    QStringList arguments;
    QString workingFolder;
    QString commandLine; ///< the call as one text, for messages alone
};

/// How a tool's run ended.
struct ToolRun {
    QString commandLine;
    bool started = false;
    QString whyNotStarted;  ///< the platform's description, where it did not start
    bool succeeded = false; ///< ended by itself with exit status 0
    QString messages;       ///< what it wrote on standard error
};

/// Starts a tool and waits until it has ended, without a time-out. Pending window events other than
/// keys and clicks are processed once after the start. The tool is looked for in the folders first,
/// then along PATH.
ToolRun RunAndWait(const ToolCall &call, const QStringList &folders);
