#pragma once

#include <QByteArrayView>

#include <array>

namespace vellumo {

/// Fonts of the handheld, as its forms number them; titles and questions are bold.
constexpr quint32 standardFont = 0, boldFont = 1, symbolFont = 3;

/// The pixels that each code of windows-1252 is wide in a font of the handheld.
using FontWidths = std::array<quint8, 256>;

/// The widths of a font: 0, 1 or 3. In another, which the handheld does not have, all are 0.
const FontWidths &WidthsOf(quint32 font);

/// The pixels that a text in windows-1252 is wide in a font, as a database's stored sizes have it.
quint32 TextWidth(QByteArrayView text, quint32 font);

/// The pixels that the screen must have for the text: its width, but that the euro sign is counted
/// as 3 pixels wider in the fonts 0 and 1, as some systems have it (docs/handheld-screen.md).
quint32 DrawnWidth(QByteArrayView text, quint32 font);

/// The most bytes from the start of a text that are drawn at most so many pixels wide.
qsizetype FittingLength(QByteArrayView text, int width, quint32 font);

} // namespace vellumo
