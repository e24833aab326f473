#pragma once

#include "cli/options.h"

#include <QHash>
#include <QStringList>

namespace vellumo {

/// Which words a command takes.
struct CommandShape {
    int fewestInputs = 1;
    int mostInputs = 1;
    QLatin1StringView whichInput = {}; ///< what is asked for when too few are named
    Options options = {};              ///< besides those that every command takes
};

/// What was asked for beside the command's name.
struct CommandLine {
    QStringList inputs;                  ///< at least one; "-" is standard input
    QHash<Option, QString> options = {}; ///< those given, with their checked values

    bool Has(Option option) const { return options.contains(option); }
    QString Value(Option option, const QString &unlessGiven = {}) const
    {
        return options.value(option, unlessGiven);
    }
    /// Of --timeout; 1 or more.
    int TimeoutSeconds() const { return Value(Option::Timeout, QStringLiteral("60")).toInt(); }
};

/// Reads the words but the command's name. Everything after "--" is an input.
Result<CommandLine> ParseCommandLine(const QStringList &words, const CommandShape &shape);

} // namespace vellumo
