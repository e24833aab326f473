#pragma once

#include <QStringList>

namespace vellumo {

// Names of a form sheet, one for each of some texts, of which no two meet without regard to case. A
// text that can be a name keeps it; of those that meet it is the first.

/// Names that begin with a letter or an underscore and go on with letters, digits, hyphens,
/// underscores and full stops, all of ASCII; other characters become underscores. None is that
/// which is taken already.
QStringList SheetNames(const QStringList &texts, const QString &taken = {});

/// Names of choices, in which everything stands but white space, and "${", which would begin a
/// reference.
QStringList ChoiceNames(const QStringList &texts);

} // namespace vellumo
