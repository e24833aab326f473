#include "screens/svg_shapes.h"

#include "handheld/font_widths.h"
#include "screens/screen_text.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr int baseline = 9; // of letters, below the top of their line

void WriteNumber(QXmlStreamWriter &svg, QLatin1StringView name, double number)
{
    svg.writeAttribute(name, QString::number(number));
}

void WritePlace(QXmlStreamWriter &svg, const QRectF &place)
{
    WriteNumber(svg, "x"_L1, place.x());
    WriteNumber(svg, "y"_L1, place.y());
    WriteNumber(svg, "width"_L1, place.width());
    WriteNumber(svg, "height"_L1, place.height());
}

/// The place of a line through the middle of the outermost pixels.
void WritePixels(QXmlStreamWriter &svg, const QRect &place)
{
    WritePlace(svg, QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace

void FillPixels(QXmlStreamWriter &svg, const QRect &place, QLatin1StringView look)
{
    svg.writeEmptyElement("rect"_L1);
    svg.writeAttribute("class"_L1, look);
    WritePlace(svg, place);
}

void FramePixels(QXmlStreamWriter &svg, const QRect &place, QLatin1StringView look, int radius)
{
    svg.writeEmptyElement("rect"_L1);
    svg.writeAttribute("class"_L1, look);
    WritePixels(svg, place);
    if (radius > 0)
        WriteNumber(svg, "rx"_L1, radius);
}

void DotPixels(QXmlStreamWriter &svg, QPoint corner, int width)
{
    DrawOutline(svg, u"M%1 %2.5h%3"_s.arg(corner.x()).arg(corner.y()).arg(width), "dots"_L1);
}

void DrawOutline(QXmlStreamWriter &svg, const QString &commands, QLatin1StringView look)
{
    svg.writeEmptyElement("path"_L1);
    svg.writeAttribute("class"_L1, look);
    svg.writeAttribute("d"_L1, commands);
}

void DrawArrow(QXmlStreamWriter &svg, QPoint corner, bool up)
{
    for (int row = 0; row < 4; ++row) {
        const int inset = up ? 3 - row : row;
        FillPixels(svg, {corner.x() + inset, corner.y() + row, 7 - 2 * inset, 1}, "ink"_L1);
    }
}

void DrawLine(QXmlStreamWriter &svg, const TextLine &line, QLatin1StringView look)
{
    if (line.place.width() <= 0)
        return;
    svg.writeStartElement("text"_L1);
    const QLatin1StringView weight = line.font == boldFont ? "bold"_L1 : "plain"_L1;
    svg.writeAttribute("class"_L1, look.isEmpty() ? QString(weight) : weight + u' ' + look);
    WriteNumber(svg, "x"_L1, line.place.x());
    WriteNumber(svg, "y"_L1, line.place.y() + baseline);
    WriteNumber(svg, "textLength"_L1, line.place.width());
    svg.writeAttribute("lengthAdjust"_L1, "spacingAndGlyphs"_L1);
    svg.writeCharacters(ShownText(line.text));
    svg.writeEndElement();
}

void MarkArea(QXmlStreamWriter &svg, const QRect &place, QLatin1StringView look,
              const QString &meaning)
{
    svg.writeStartElement("rect"_L1);
    svg.writeAttribute("class"_L1, look);
    WritePixels(svg, place);
    svg.writeTextElement("title"_L1, meaning);
    svg.writeEndElement();
}

} // namespace vellumo
