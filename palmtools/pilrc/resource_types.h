#pragma once

#include "palmtools/common/resource.h"

namespace palmtools {

// The types of what the statements make, but for HEX, which names its own: docs/palm-formats.md,
// "The resources of a project".

constexpr FourBytes applicationIconNameType = FourBytesOf("tAIN");
constexpr FourBytes formType = FourBytesOf("tFRM");
constexpr FourBytes navigationType = FourBytesOf("fnav");
constexpr FourBytes stringTableType = FourBytesOf("tSTL");
constexpr FourBytes versionType = FourBytesOf("tver");

} // namespace palmtools
