#pragma once

#include "platform/result.h"

#include <QStringList>

namespace vellumo {

/// A list of texts as one cell holds it: a line each. Within a text \\ stands for a backslash, \n
/// for a line break, \t for a tab and, at its ends, \s for a blank; a line of \- alone is an empty
/// text.
QString WriteList(const QStringList &texts);

/// The texts of such a cell. Blanks and tabs at the ends of a line do not belong to it, and empty
/// lines are passed over. An error where a backslash begins nothing of the above.
Result<QStringList> ReadList(const QString &cell);

/// A cell's or a file's text with LF for every line break.
QString WithLineFeeds(QString text);

} // namespace vellumo
