#pragma once

#include "help/reader/archive_header.h"
#include "help/reader/object_directory.h"

namespace vellumo {

/// The directory of a compiled help file; each chunk of it is read once. None where a name or
/// number does not end within its chunk, a path through the index comes back to a chunk, an object
/// that is stored as it stands does not lie within the file, or there is more of something than a
/// limit allows. Whether the compressed objects are sound is not looked at.
std::optional<ObjectDirectory> ReadDirectory(QIODevice &file, const ArchiveHeader &header);

} // namespace vellumo
