#pragma once

#include "palmtools/pilrc/arguments.h"
#include "palmtools/pilrc/resource_list.h"

namespace palmtools {

// Each reads what follows the name of its statement, a number and one text, and adds the resource.
// They throw ScriptError where the script is at fault.

void ReadApplicationIconName(ArgumentReader &arguments, ResourceList &resources);

/// The number may be missing and is 1 then.
void ReadVersion(ArgumentReader &arguments, ResourceList &resources);

} // namespace palmtools
