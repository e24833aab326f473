#pragma once

#include <QByteArrayView>
#include <QString>

namespace vellumo {

/// What happens on the screen to a question, whose text in windows-1252 arrives like this, above an
/// answer that leaves it so many lines; empty where all of it is seen. Each line that is too wide
/// is told, lines that run into the answer, and the way out.
QString QuestionMisfit(QByteArrayView text, int freeLines);

/// What happens to a text of one line that is wider than so many pixels in a font: by how much it
/// is, and after which letters it stops; empty where it fits.
QString LineMisfit(QByteArrayView line, int width, quint32 font);

} // namespace vellumo
