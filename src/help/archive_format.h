#pragma once

#include <QByteArrayView>
#include <QtGlobal>

#include <array>

namespace vellumo {

// The outer form of a compiled help file: a header, a directory of chunks that names every object,
// and the objects one after the other. All numbers are little-endian.

namespace archive {

inline constexpr qsizetype headerSize = 0x60;
inline constexpr qsizetype sizeSectionSize = 0x18;
inline constexpr qsizetype directoryHeaderSize = 0x54;
inline constexpr qsizetype chunkSize = 0x1000;
/// What stands before the entries of a chunk: in a listing of objects, and in an index of chunks.
inline constexpr qsizetype listingHeaderSize = 20;
inline constexpr qsizetype indexHeaderSize = 8;
/// Each chunk ends with the offset of every fifth entry, which lets a reader search by halves.
inline constexpr qsizetype entriesPerMark = 5;
inline constexpr quint32 english = 0x409;

inline constexpr char headerTag[] = "ITSF";
inline constexpr char directoryTag[] = "ITSP";
inline constexpr char listingTag[] = "PMGL";
inline constexpr char indexTag[] = "PMGI";

using Guid = std::array<unsigned char, 16>;

// {7C01FD10-7BAA-11D0-9E0C-00A0C922E6EC}, {7C01FD11-...} and {5D02926A-212E-11D0-9DF9-...},
// as they lie in the file.
inline constexpr Guid directoryGuid = {0x10, 0xFD, 0x01, 0x7C, 0xAA, 0x7B, 0xD0, 0x11,
                                       0x9E, 0x0C, 0x00, 0xA0, 0xC9, 0x22, 0xE6, 0xEC};
inline constexpr Guid streamGuid = {0x11, 0xFD, 0x01, 0x7C, 0xAA, 0x7B, 0xD0, 0x11,
                                    0x9E, 0x0C, 0x00, 0xA0, 0xC9, 0x22, 0xE6, 0xEC};
inline constexpr Guid chunksGuid = {0x6A, 0x92, 0x02, 0x5D, 0x2E, 0x21, 0xD0, 0x11,
                                    0x9D, 0xF9, 0x00, 0xA0, 0xC9, 0x22, 0xE6, 0xEC};

} // namespace archive

} // namespace vellumo
