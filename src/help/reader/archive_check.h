#pragma once

class QIODevice;

namespace vellumo {

/// Whether header and directory of a compiled help file are sound: every name and number is within
/// its chunk, no path through the index comes back to a chunk, every object that is stored as it
/// stands lies within the file, and the numbers that steer the decompression belong together. A
/// reader that trusts all this is safe then.
bool IsSoundArchive(QIODevice &file);

} // namespace vellumo
