#pragma once

#include "readback/delivered_types.h"
#include "readback/navigation_reader.h"

namespace vellumo {

/// The navigation that goes with the form of a question of a type (docs/palm-formats.md, "The form
/// of a question").
Navigation ExpectedNavigation(const DeliveredType &type);

} // namespace vellumo
