#pragma once

#include "readback/delivered_texts.h"
#include "readback/form.h"

namespace vellumo {

/// The form that a question must have, object by object (docs/palm-formats.md, "The form of a
/// question"); a question of an unknown type has only
/// what every form has.
Form ExpectedForm(quint32 number, const DeliveredQuestion &question);

} // namespace vellumo
