#pragma once

#include <QtGlobal>

#include <optional>

class QIODevice;

namespace vellumo {

/// What leads to the directory and the content of a compiled help file.
struct ArchiveHeader {
    quint64 contentStart = 0;
    quint64 contentLength = 0; ///< to the end of the file
    quint64 chunksStart = 0;
    quint64 chunkCount = 0; ///< all of them lie in the file
    quint32 chunkSize = 0;
    qint64 rootChunk = 0; ///< by its number, which may be that of no chunk
};

/// None where the tags are others, a place lies beyond the file, or a size is beyond its limit.
std::optional<ArchiveHeader> ReadArchiveHeader(QIODevice &file);

} // namespace vellumo
