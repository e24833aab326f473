#pragma once

#include <QByteArrayView>
#include <QString>

namespace vellumo {

// The text of a project that arrives on the handheld as certain bytes (docs/palm-formats.md, "What
// a recovered text is"). A project file can hold each, and reads it again as it is.

/// A text in free wording: question text, description.
QString RecoverWording(QByteArrayView delivered);

/// A text whose quotes the script does not escape: title, column name.
QString RecoverWritten(QByteArrayView delivered);

/// A form version, which has to do without blanks.
QString RecoverVersion(QByteArrayView delivered);

/// An item of a question, which is one of several or not.
QString RecoverItem(QByteArrayView delivered, bool oneOfSeveral);

/// A form name, in which no escape is interpreted. What a project file cannot hold is left out.
QString RecoverName(QByteArrayView delivered);

/// A folder, likewise. The backslash at its end is the script's, unless it is that of a drive.
QString RecoverFolder(QByteArrayView delivered);

} // namespace vellumo
