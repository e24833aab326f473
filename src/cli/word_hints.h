#pragma once

#include <QStringList>

namespace vellumo {

// What helps somebody whose words are not understood, to stand behind what is wrong with them; a
// sentence with a blank before it, or empty where there is nothing to say.

/// That a word may be a name that begins with a dash.
QString HintOfNames(const QStringList &words);

/// Which option may be meant by one that there is not, given without its dashes.
QString HintOfOption(const QString &unknown, const QStringList &names);

/// What may be meant by words that have no command.
QString HintWithoutCommand(const QStringList &words);

} // namespace vellumo
