#pragma once

#include <QByteArrayView>
#include <QString>

namespace vellumo {

/// A place of the screen that has one line for a text.
struct LinePlace {
    QLatin1StringView code; ///< of a text that is too wide for it
    int width;              ///< in pixels
    quint32 font;
    QLatin1StringView then; ///< what becomes of the rest of such a text
};

extern const LinePlace titlePlace;
extern const LinePlace listPlace;    ///< of an item in an opened pulldown list
extern const LinePlace captionPlace; ///< of a check box

/// What happens to a text in its place, in windows-1252 as it arrives; empty where all of it is
/// seen.
QString MisfitIn(const LinePlace &place, QByteArrayView text);

/// What happens to such a text that has one of the two letters which the handheld lacks; empty
/// where it has none.
QString LetterMisfit(QByteArrayView text);

} // namespace vellumo
