#include "palmtools/pilrc/font_widths.h"

#include <cstdint>

namespace palmtools {
namespace {

struct FontWidths {
    int font;
    std::uint8_t widths[256]; ///< pixels, by code
};

struct FontSize {
    int font, height; ///< pixels
};

// The fonts of docs/palm-formats.md, "Sizes that are left open": standard, bold and symbols.
constexpr FontWidths widthsOfFonts[] = {
#include "palmtools/pilrc/font_widths.inc"
};
constexpr FontSize sizesOfFonts[] = {{0, 11}, {1, 11}, {3, 10}};

template <typename Row, std::size_t count>
constexpr const Row *RowOf(const Row (&table)[count], std::int64_t font)
{
    for (const Row &row : table) {
        if (row.font == font)
            return &row;
    }
    return nullptr;
}

} // namespace

bool FontIsKnown(std::int64_t number)
{
    return RowOf(sizesOfFonts, number) != nullptr;
}

int FontHeight(std::int64_t number)
{
    return RowOf(sizesOfFonts, number)->height;
}

std::int64_t TextWidth(std::string_view text, std::int64_t number)
{
    const FontWidths &font = *RowOf(widthsOfFonts, number);
    std::int64_t width = 0;
    for (const char c : text)
        width += font.widths[static_cast<unsigned char>(c)];
    return width;
}

} // namespace palmtools
