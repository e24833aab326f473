#pragma once

#include "cli/console.h"

#include <QJsonObject>

namespace vellumo {

/// How the work on an input ended.
struct Ending {
    /// It failed or did not pass, and why was told.
    Ending(Exit failed) : exit(failed) {}
    Ending(Exit how, QLatin1StringView what, QString sentence)
        : exit(how), code(what), text(std::move(sentence))
    {}

    Exit exit;
    QLatin1StringView code = QLatin1StringView("failed"); ///< for programs; never changes
    QString text = QStringLiteral("It failed.");
    QString shown = {};    ///< what a person is told of it; empty = nothing more
    QString made = {};     ///< path of the file that came of it; empty = none did
    QJsonObject more = {}; ///< what else a program is told
};

/// Tells of the ending, to a program in one object of the kind "result". The input's name is as
/// messages have it; it is empty where several inputs had one output.
void Tell(const Ending &ending, const QString &inputName, const Console &console);

/// Tells of the file that was, or was to be, made of several inputs or of none.
void TellOfFile(Ending ending, const QString &file, const Console &console);

} // namespace vellumo
