#pragma once

#include "palmtools/common/bytes.h"
#include "palmtools/common/resource.h"
#include "palmtools/common/result.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace palmtools {

// The layout of a resource database: docs/palm-formats.md, "One layout for both files".

/// What the header of a resource database says; times are seconds as the handheld counts them.
struct DatabaseHeader {
    std::string name; ///< what goes beyond 31 bytes is cut off
    bool hidden = false;
    std::uint32_t time = 0; ///< of the creation and of the last change
    FourBytes type = 0;
    FourBytes creator = 0;
};

/// The whole database, its resources in the order given; at most 65,535 of them.
/// Fails where it would be larger than ReadFile() reads.
Result<Bytes> EncodeDatabase(const DatabaseHeader &header,
                             const std::vector<ResourceView> &resources);

/// The resources of a database in the order of its entries; they point into the bytes.
/// What is wrong with a damaged one is told in the error.
Result<std::vector<ResourceView>> DecodeDatabase(std::string_view bytes);

} // namespace palmtools
