#pragma once

#include "palmtools/pilrc/arguments.h"
#include "palmtools/pilrc/resource_list.h"

namespace palmtools {

/// Reads what follows NAVIGATION, up to its END, and adds the resource.
/// Throws ScriptError where the script is at fault.
void ReadNavigation(ArgumentReader &arguments, ResourceList &resources);

} // namespace palmtools
