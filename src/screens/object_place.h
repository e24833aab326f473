#pragma once

#include "readback/form.h"

#include <QRect>

namespace vellumo {

/// The place of an object as its bytes have it; a label and an indicator have no size.
QRect PlaceOf(const FormObject &object);

/// Whether the handheld shows an object from the start; a hidden list waits until it is opened.
bool IsShown(const FormObject &object);

} // namespace vellumo
