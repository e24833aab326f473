#include "screens/label_lines.h"

#include "handheld/font_widths.h"
#include "handheld/line_breaks.h"
#include "handheld/screen_geometry.h"

#include <algorithm>

namespace vellumo {
namespace {

// A line may reach one pixel beyond the screen, which is the gap behind its last letter.
constexpr int endOfLines = screen::questionX + screen::questionWrapWidth;

/// A font that the handheld does not have is the standard one.
quint32 KnownFont(quint32 font)
{
    return font == boldFont || font == symbolFont ? font : standardFont;
}

} // namespace

TextLine LineAt(QPoint corner, const QByteArray &text, quint32 font)
{
    const quint32 known = KnownFont(font);
    const QSize size(int(DrawnWidth(text, known)), screen::lineHeight);
    return {text, {corner, size}, known};
}

QList<TextLine> LinesOf(const FormObject &label)
{
    QPoint corner(int(label.x), int(label.y));
    const int width = std::max(0, endOfLines - corner.x());
    QList<TextLine> lines;
    for (const QByteArrayView typed : TypedLines(label.text)) {
        for (const QByteArrayView line : WrappedLines(typed, width, KnownFont(label.font))) {
            if (corner.y() >= screen::height)
                return lines;
            lines.append(LineAt(corner, line.toByteArray(), label.font));
            corner.ry() += screen::lineHeight;
        }
    }
    return lines;
}

TextLine TitleLine(const FormObject &title)
{
    constexpr int top = 2;
    return LineAt({screen::titleX, top}, title.text, boldFont);
}

} // namespace vellumo
