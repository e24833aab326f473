#pragma once

#include "palmtools/pilrc/arguments.h"
#include "palmtools/pilrc/resource_list.h"

namespace palmtools {

// Each reads what follows the name of its statement and adds the resource.

void ReadHex(ArgumentReader &arguments, ResourceList &resources);
void ReadStringTable(ArgumentReader &arguments, ResourceList &resources);
void ReadForm(ArgumentReader &arguments, ResourceList &resources);
void ReadNavigation(ArgumentReader &arguments, ResourceList &resources);
void ReadApplicationIconName(ArgumentReader &arguments, ResourceList &resources);
void ReadVersion(ArgumentReader &arguments, ResourceList &resources);

} // namespace palmtools
