#include "handheld/font_widths.h"

#include <algorithm>

namespace vellumo {
namespace {

struct Font {
    quint32 number;
    quint8 widths[256]; ///< pixels, by code
};

// Not the table that databases are made by, though from the same figures: they are checked by it.
constexpr Font fonts[] = {
#include "handheld/font_widths.inc"
};

} // namespace

quint32 TextWidth(QByteArrayView text, quint32 font)
{
    const auto row = std::ranges::find(fonts, font, &Font::number);
    if (row == std::end(fonts))
        return 0;
    quint32 width = 0;
    for (const char c : text)
        width += row->widths[static_cast<uchar>(c)];
    return width;
}

} // namespace vellumo
