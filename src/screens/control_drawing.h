#pragma once

#include "readback/form.h"

#include <QXmlStreamWriter>

namespace vellumo {

/// Draws a control at its place, as its style asks for.
void DrawControl(QXmlStreamWriter &svg, const FormObject &control);

/// Draws the box of a check box that stands in a place with this corner.
void DrawBox(QXmlStreamWriter &svg, QPoint corner);

} // namespace vellumo
