#pragma once

#include "screens/label_lines.h"

#include <QXmlStreamWriter>

namespace vellumo {

// Shapes of a drawing whose unit is a pixel of the handheld. What a shape looks like is told by its
// class in resources/screens.css.

/// All pixels of a rectangle.
void FillPixels(QXmlStreamWriter &svg, const QRect &place, QLatin1StringView look);

/// The outermost pixels of a rectangle, with corners that are so round; the others are filled.
void FramePixels(QXmlStreamWriter &svg, const QRect &place, QLatin1StringView look, int radius = 0);

/// Every second pixel of a row.
void DotPixels(QXmlStreamWriter &svg, QPoint corner, int width);

/// A shape by the commands of its outline.
void DrawOutline(QXmlStreamWriter &svg, const QString &commands, QLatin1StringView look);

/// A triangle of 7 by 4 pixels that points up or down, by its top left corner.
void DrawArrow(QXmlStreamWriter &svg, QPoint corner, bool up);

/// A text in one line, exactly as wide as its place.
void DrawLine(QXmlStreamWriter &svg, const TextLine &line, QLatin1StringView look = {});

/// The outermost pixels of a rectangle, over what is there, and what it stands for.
void MarkArea(QXmlStreamWriter &svg, const QRect &place, QLatin1StringView look,
              const QString &meaning);

} // namespace vellumo
