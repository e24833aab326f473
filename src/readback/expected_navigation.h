#pragma once

#include "readback/delivered_types.h"
#include "readback/navigation_reader.h"

namespace vellumo {

/// The navigation that goes with the form of a question of a type.
Navigation ExpectedNavigation(const DeliveredType &type);

} // namespace vellumo
