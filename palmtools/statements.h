#pragma once

#include "palmtools/arguments.h"
#include "palmtools/resources.h"

namespace palmtools {

// Each reads what follows the name of its statement and adds the resource.

void ReadHex(Arguments &arguments, ResourceList &resources);
void ReadStringTable(Arguments &arguments, ResourceList &resources);
void ReadForm(Arguments &arguments, ResourceList &resources);
void ReadNavigation(Arguments &arguments, ResourceList &resources);
void ReadApplicationIconName(Arguments &arguments, ResourceList &resources);
void ReadVersion(Arguments &arguments, ResourceList &resources);

} // namespace palmtools
