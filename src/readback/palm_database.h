#pragma once

#include "platform/files.h"

#include <QByteArray>
#include <QList>

namespace vellumo {

/// Of files that are read as databases.
inline constexpr FileLimit databaseLimit = {16LL * 1024 * 1024, QLatin1StringView("database")};

/// What tells one resource of a database from another.
struct ResourceKey {
    QByteArrayView type; ///< 4 bytes
    quint32 number;
};

struct PalmResource {
    QByteArray type; ///< 4 bytes
    quint32 number = 0;
    QByteArray data = {};

    ResourceKey Key() const { return {type, number}; }
};

namespace DatabaseAttribute {
inline constexpr quint32 resources = 0x0001;
inline constexpr quint32 backup = 0x0008; ///< to be backed up; a handheld's user may ask for it
inline constexpr quint32 hidden = 0x0100;
} // namespace DatabaseAttribute

/// A database of resources as it is sent to a handheld.
struct PalmDatabase {
    QByteArray name = {}; ///< in windows-1252, like every text of a database
    QByteArray type = {}; ///< 4 bytes, as the creator
    QByteArray creator = {};
    quint32 attributes = 0; ///< DatabaseAttribute
    quint32 version = 0;
    quint32 created = 0; ///< seconds since 1904 on the clock of the place, as the next ones
    quint32 modified = 0;
    quint32 backedUp = 0; ///< 0 = never
    quint32 changes = 0;  ///< that a handheld has counted
    quint32 idSeed = 0;   ///< from which a handheld numbers records
    /// By type, then number, in whatever order they stand in the file; no two the same.
    QList<PalmResource> resources = {};
    /// Where they stand in another one, such as "'flds' 1000 stands after 'tver' 9"; else empty.
    QString disorder = {};
    qsizetype size = 0; ///< bytes of the whole file
};

/// A resource for a message: 'tFRM' 3.
QString Describe(const ResourceKey &key);

/// Reads a database whole (docs/palm-formats.md, "One layout for both files"). Fails, with one
/// sentence, at the first thing that the layout does not allow: an offset outside of the file or
/// out of order, a resource that is there twice or larger than a handheld takes, a field or gap
/// that is not zero. Any bytes may be given.
///
/// The last resource reaches to the end of the file, so that bytes too many or too few there can
/// only be told from its content.
Result<PalmDatabase> ReadDatabase(const QByteArray &bytes);

} // namespace vellumo
