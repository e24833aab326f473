#include "handheld/font_widths.h"

#include <algorithm>

namespace vellumo {
namespace {

struct Font {
    quint32 number;
    FontWidths widths;
};

// Not the table that databases are made by, though from the same figures: they are checked by it.
constexpr Font fonts[] = {
#include "handheld/font_widths.inc"
};

constexpr FontWidths noWidths = {};

constexpr char euro = '\x80';

/// By how much the euro sign is wider on the screen than in the figures.
constexpr quint32 MoreForEuro(quint32 font)
{
    return font <= 1 ? 3 : 0;
}

} // namespace

const FontWidths &WidthsOf(quint32 font)
{
    const auto row = std::ranges::find(fonts, font, &Font::number);
    return row == std::end(fonts) ? noWidths : row->widths;
}

quint32 TextWidth(QByteArrayView text, quint32 font)
{
    const FontWidths &widths = WidthsOf(font);
    quint32 width = 0;
    for (const char c : text)
        width += widths[static_cast<uchar>(c)];
    return width;
}

quint32 DrawnWidth(QByteArrayView text, quint32 font)
{
    const auto euros = std::ranges::count(text, euro);
    return TextWidth(text, font) + MoreForEuro(font) * static_cast<quint32>(euros);
}

qsizetype FittingLength(QByteArrayView text, int width, quint32 font)
{
    const FontWidths &widths = WidthsOf(font);
    qsizetype length = 0;
    for (int left = width; length < text.size(); ++length) {
        const char next = text[length];
        left -= widths[static_cast<uchar>(next)];
        if (next == euro)
            left -= static_cast<int>(MoreForEuro(font));
        if (left < 0)
            break;
    }
    return length;
}

} // namespace vellumo
