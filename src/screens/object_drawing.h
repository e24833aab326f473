#pragma once

#include "readback/form.h"

#include <QXmlStreamWriter>

namespace vellumo {

/// What is drawn of an object besides its own bytes.
struct DrawingContext {
    const Form &form; ///< in which the object stands
    int formCount;    ///< of which that is one
};

/// Draws an object at its place. What reaches out of the screen is left to be cut there.
void DrawObject(QXmlStreamWriter &svg, const FormObject &object, const DrawingContext &context);

/// Draws a list in its frame, with as many of its items as there is room for.
void DrawList(QXmlStreamWriter &svg, const FormObject &list);

} // namespace vellumo
