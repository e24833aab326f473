#pragma once

#include "palmtools/common/database.h"
#include "palmtools/common/resource.h"
#include "palmtools/common/result.h"

#include <ctime>
#include <string>
#include <vector>

namespace palmtools {

// From resources to a database, without files: HeaderOf(), Sorted(), then EncodeDatabase().

/// What a database is to the handheld, as a caller writes it.
struct DatabaseIdentity {
    std::string name = {};     ///< UTF-8 or windows-1252, see DatabaseNameOf()
    std::string type = "appl"; ///< four bytes
    std::string creator = {};  ///< four bytes, or none
    bool hidden = false;       ///< in the launcher
};

/// The header of a database that is made at a moment.
/// Fails where the type or the creator has another length and where the name is refused.
Result<DatabaseHeader> HeaderOf(const DatabaseIdentity &identity, std::time_t moment);

/// Puts the resources into the order that a database has, by type and number.
/// Fails if two have the same type and number.
Result<std::vector<ResourceView>> Sorted(std::vector<ResourceView> resources);

} // namespace palmtools
