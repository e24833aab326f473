#pragma once

#include "palmtools/common/bytes.h"
#include "palmtools/common/resource.h"
#include "palmtools/common/result.h"

#include <string>
#include <vector>

namespace palmtools {

/// The bytes of the resource file that lies at a path: the same for the same path and resources.
/// Fails as EncodeDatabase() does.
Result<Bytes> EncodeResourceFile(const std::string &path, const std::vector<Resource> &resources);

} // namespace palmtools
