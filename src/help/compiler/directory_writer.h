#pragma once

#include <QByteArray>

#include <vector>

namespace vellumo {

/// Where an object lies; a folder has a name that ends with a slash and no bytes.
struct ArchiveEntry {
    QByteArray path;
    quint64 offset = 0; ///< from the first byte of all objects
    quint64 length = 0;
};

/// The directory of an archive, header included. The entries may come in any order; each of their
/// names is at most 512 bytes, and all of them are few enough for one index (some hundred
/// thousand).
QByteArray WriteDirectory(std::vector<ArchiveEntry> entries);

} // namespace vellumo
