#pragma once

#include "cli/options.h"

#include <QStringList>

namespace vellumo {

// What words are before it is known which of them a command takes.

/// Whether a word is read as options, unless it is the value of one or stands after "--".
bool IsOption(const QString &word);

/// The letters of a word such as "-qo", each an option; what follows one that takes a value is
/// that.
QStringView LettersOf(const QString &word);

/// The places of the words before "--" that are no value of the one before them.
QList<qsizetype> PlacesOfWords(const QStringList &words);

/// Where in the words of the whole line the command's name stands: the first that is no option and
/// no option's value. None stands after "--"; then, and where there is none at all, it is -1.
qsizetype CommandAt(const QStringList &words);

/// Whether an option stands among the words and is no option's value, whatever else is wrong with
/// them.
bool AsksFor(const QStringList &words, Option option);

} // namespace vellumo
