#pragma once

#include "readback/form.h"

#include <QRect>

namespace vellumo {

/// A line of a text on the screen and its place there, which may lie outside.
struct TextLine {
    QByteArray text;
    QRect place;
    quint32 font = 0; ///< one that the handheld has
};

/// A text in one line that begins there. A font that the handheld does not have is the standard
/// one.
TextLine LineAt(QPoint corner, const QByteArray &text, quint32 font);

/// The lines of a label as far as they begin on the screen, broken where the screen ends.
QList<TextLine> LinesOf(const FormObject &label);

/// The title of a form as it stands in its tab.
TextLine TitleLine(const FormObject &title);

} // namespace vellumo
