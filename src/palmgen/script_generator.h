#pragma once

#include "model/project.h"
#include "platform/result.h"

#include <QByteArray>

namespace vellumo {

/// A resource script in windows-1252 with CR LF, and how its writing ended. After a failure the
/// bytes are those that were written until then.
struct Script {
    QByteArray bytes;
    Outcome outcome = done;
};

/// The script that the resource compiler turns into the Vellsheet of a project: seven data
/// resources, a form and its navigation for each question in table order, name and version.
///
/// The identifier is written as it is given. The project is not validated; the script fails on a
/// list question without items, on more questions than its count field holds (255), and on a
/// character that windows-1252 lacks.
Script GenerateScript(const Project &project, QStringView identifier);

/// A registry-form identifier, {XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}, as its digits alone.
QString IdentifierDigits(QString registryForm);

/// A text as it stands between quotes in the script: each quote has one backslash in front,
/// however many stood there. Other backslashes stay as they are.
QString EscapeScriptString(QStringView text);

} // namespace vellumo
