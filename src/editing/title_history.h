#pragma once

#include <QStringList>

namespace vellumo {

/// Remembers the title of a finished question, unless the project remembers it already.
///
/// titleList is what the project keeps, oldest first; offered is what the drop-down of the open
/// wizard holds. A new title is always offered, so that offered may outgrow the ten places of
/// titleList; there the oldest then makes room. Titles beyond the tenth, which only a file can
/// bring, stay where they are.
void RememberTitle(const QString &title, QStringList &titleList, QStringList &offered);

} // namespace vellumo
