#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QLatin1StringView>

namespace vellumo {

/// Where a text stands in a project, for messages.
struct TextPlace {
    QLatin1StringView field; ///< its name to a user, such as "title" or "form name"
    int question = 0;        ///< position of the question from 1, 0 = none applies
};

/// The place as a sentence begins with it: "The title of question 3", "The form name".
QString Describe(const TextPlace &place);

/// Place and text as a list has them: question 3, title: "Age". Without the text where it is empty.
QString Quote(const TextPlace &place, const QString &text);

/// Appends a text of a project in windows-1252, which project file and script are written in.
/// Fails at the first character that the code page lacks, with place and character in the error;
/// the bytes before it have then been appended.
Outcome AppendEncoded(QByteArray &bytes, QStringView text, const TextPlace &place);

/// A text without the blanks (U+0020 alone) at its ends; tabs and line breaks stay.
QStringView TrimBlanks(QStringView text);

} // namespace vellumo
