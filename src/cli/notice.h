#pragma once

#include "model/texts.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace vellumo {

/// Something that a command has to tell, for a person and for a program.
struct Notice {
    QLatin1StringView kind; ///< "result", "finding", "column", "warning", "remark" or "error"
    QLatin1StringView code; ///< what it is, for programs; never changes
    QString text;           ///< what it is, in a sentence
    QString shown = {};     ///< what a person sees instead, as it is; empty = the visible sentence
    QString file = {};
    int line = 0;     ///< from 1, 0 = none applies
    int step = 0;     ///< of the designer, where it can be mended; 1 to 3, 0 = none applies
    int question = 0; ///< position from 1, 0 = none applies
    QString field = {};
    QJsonObject more = {}; ///< for programs alone
    bool advice = false;   ///< it leaves the exit status alone
};

/// The step of the designer that has such a text, 1 to 3; 0 = none applies.
int StepOf(const TextPlace &place);

/// The notice as one JSON object on one line, in UTF-8; what does not apply is left out.
QByteArray ToJson(const Notice &notice);

/// A text with its control characters made visible, so that it stays on one line and none of them
/// reaches a terminal.
QString Visible(const QString &text);

/// The same of each line of a text.
QString VisibleLines(const QString &text);

} // namespace vellumo
