#pragma once

#include "help/reader/archive_header.h"
#include "help/reader/object_directory.h"

namespace vellumo {

/// How many bytes the compressed objects of a help file have together, before they were compressed,
/// as the two objects that steer the decompression tell: the size of the decoder's window and how
/// often it starts anew, and where each block begins. None where their numbers do not belong
/// together or a block is longer than a reader makes room for.
std::optional<quint64> SizeBeforeCompression(const QByteArray &control, const QByteArray &table);

/// Whether a reader that trusts the two objects, and the places of the compressed ones, is safe.
bool IsCompressionSound(QIODevice &file, const ArchiveHeader &header,
                        const ObjectDirectory &objects);

} // namespace vellumo
