#pragma once

#include "help/field.h"

#include <QByteArrayView>

#include <array>

// The outer form of a compiled help file, which docs/help-file.md has in tables: a header, a
// directory of chunks that names every object, and the objects one after the other. A structure
// begins with its tag; offsets count from there.
namespace vellumo::archive {

using Guid = std::array<unsigned char, 16>;

inline constexpr quint32 english = 0x409;
inline constexpr qint32 none = -1; ///< in place of a chunk's number

namespace header {

inline constexpr QByteArrayView tag = "ITSF";
inline constexpr Field<quint32> version{0x04}; ///< 3, or 2 for one that ends at contentStart
inline constexpr Field<quint32> length{0x08};
inline constexpr Field<quint32> alwaysOne{0x0C};
inline constexpr Field<quint32> timeStamp{0x10};
inline constexpr Field<quint32> language{0x14};
inline constexpr qsizetype directoryGuid = 0x18;
inline constexpr qsizetype streamGuid = 0x28;
inline constexpr Field<quint64> sizesStart{0x38};
inline constexpr Field<quint64> sizesLength{0x40};
inline constexpr Field<quint64> directoryStart{0x48};
inline constexpr Field<quint64> directoryLength{0x50};
inline constexpr Field<quint64> contentStart{0x58}; ///< of the first object
inline constexpr qsizetype size = 0x60;

} // namespace header

/// Stands behind the header and has no tag.
namespace sizes {

inline constexpr Field<quint32> always0x1FE{0x00};
inline constexpr Field<quint64> fileSize{0x08};
inline constexpr qsizetype size = 0x18;

} // namespace sizes

/// What stands before the chunks.
namespace directory {

inline constexpr QByteArrayView tag = "ITSP";
inline constexpr Field<quint32> version{0x04};
inline constexpr Field<quint32> length{0x08};
inline constexpr Field<quint32> alwaysTen{0x0C};
inline constexpr Field<quint32> chunkSize{0x10};
inline constexpr Field<quint32> density{0x14};
inline constexpr Field<quint32> depth{0x18};       ///< 1 without an index, 2 with one
inline constexpr Field<qint32> root{0x1C};         ///< number of the topmost index, or none
inline constexpr Field<qint32> firstListing{0x20}; ///< numbers of chunks
inline constexpr Field<qint32> lastListing{0x24};
inline constexpr Field<qint32> unused{0x28};
inline constexpr Field<quint32> chunkCount{0x2C};
inline constexpr Field<quint32> language{0x30};
inline constexpr qsizetype guid = 0x34;
inline constexpr Field<quint32> lengthAgain{0x44};
inline constexpr Field<qint32> alwaysNone[] = {{0x48}, {0x4C}, {0x50}};
inline constexpr qsizetype size = 0x54;

} // namespace directory

/// A chunk lists objects (listing) or the first names of other chunks (index), in entries that
/// follow its header.
namespace chunk {

inline constexpr Field<quint32> freeBytes{0x04}; ///< behind the entries

} // namespace chunk

namespace listing {

inline constexpr QByteArrayView tag = "PMGL";
inline constexpr Field<qint32> previous{0x0C}; ///< number of a listing, or none
inline constexpr Field<qint32> next{0x10};     ///< likewise
inline constexpr qsizetype size = 0x14;

} // namespace listing

namespace index {

inline constexpr QByteArrayView tag = "PMGI";
inline constexpr qsizetype size = 0x08;

} // namespace index

inline constexpr qsizetype longestName = 512; ///< of an object, in bytes

/// How the bytes of an object are kept.
enum Section : quint64 { storedSection = 0, compressedSection = 1 };

inline constexpr QByteArrayView nameListName = "::DataSpace/NameList";

// {7C01FD10-7BAA-11D0-9E0C-00A0C922E6EC}, {7C01FD11-...} and {5D02926A-212E-11D0-9DF9-...},
// as they lie in the file.
inline constexpr Guid directoryGuid = {0x10, 0xFD, 0x01, 0x7C, 0xAA, 0x7B, 0xD0, 0x11,
                                       0x9E, 0x0C, 0x00, 0xA0, 0xC9, 0x22, 0xE6, 0xEC};
inline constexpr Guid streamGuid = {0x11, 0xFD, 0x01, 0x7C, 0xAA, 0x7B, 0xD0, 0x11,
                                    0x9E, 0x0C, 0x00, 0xA0, 0xC9, 0x22, 0xE6, 0xEC};
inline constexpr Guid chunksGuid = {0x6A, 0x92, 0x02, 0x5D, 0x2E, 0x21, 0xD0, 0x11,
                                    0x9D, 0xF9, 0x00, 0xA0, 0xC9, 0x22, 0xE6, 0xEC};

inline void PutGuid(QByteArray &structure, qsizetype offset, const Guid &guid)
{
    structure.replace(offset, qsizetype(guid.size()), QByteArrayView(guid));
}

} // namespace vellumo::archive
