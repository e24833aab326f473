#pragma once

#include "palmtools/pilrc/arguments.h"
#include "palmtools/pilrc/resource_list.h"

namespace palmtools {

/// Reads what follows HEX and adds the resource: type, number, then the bytes as numbers and texts.
/// Throws ScriptError where the script is at fault.
void ReadHex(ArgumentReader &arguments, ResourceList &resources);

} // namespace palmtools
