#pragma once

#include <QByteArrayView>
#include <QList>

namespace vellumo {

/// The lines of a text in windows-1252, as it arrives: it ends one at every line feed.
QList<QByteArrayView> TypedLines(QByteArrayView text);

/// The lines of a text of one line where none may be wider than so many pixels: each ends at the
/// last blank up to there, which then is in no line, or within its only word. A letter that is
/// wider than that has a line of its own.
QList<QByteArrayView> WrappedLines(QByteArrayView line, int width, quint32 font);

} // namespace vellumo
