#pragma once

#include "palmtools/pilrc/arguments.h"
#include "palmtools/pilrc/resource_list.h"

namespace palmtools {

/// Reads what follows STRINGTABLE and adds the resource: number, prefix, texts.
/// Throws ScriptError where the script is at fault.
void ReadStringTable(ArgumentReader &arguments, ResourceList &resources);

} // namespace palmtools
