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
    constexpr char euro = '\x80';
    const auto more = font <= 1 ? 3 * std::ranges::count(text, euro) : 0;
    return TextWidth(text, font) + static_cast<quint32>(more);
}

} // namespace vellumo
