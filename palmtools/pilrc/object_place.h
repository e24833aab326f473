#pragma once

#include "palmtools/pilrc/arguments.h"
#include "palmtools/pilrc/form_object.h"

namespace palmtools {

/// Where an object stands of which all but this is read.
///
/// A size that the place leaves open comes from font and texts: docs/palm-formats.md, "Sizes that
/// are left open". A place that has no size gets that of the object. Sizes may be beyond 16 bits.
Rectangle SettledPlace(const Place &place, const FormObject &object);

} // namespace palmtools
