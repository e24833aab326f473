#pragma once

#include "help/field.h"

namespace vellumo {

// The two objects that steer the decompression, as docs/help-file.md has them in tables. The
// compressed objects are one stream, cut into blocks.

inline constexpr QByteArrayView controlDataName = "::DataSpace/Storage/MSCompressed/ControlData";
inline constexpr QByteArrayView resetTableName =
    "::DataSpace/Storage/MSCompressed/Transform/{7FC28940-9D31-11D0-9B27-00A0C91E9C7C}"
    "/InstanceData/ResetTable";

namespace controlData {

inline constexpr Field<quint32> version{0x08}; ///< 1: sizes in bytes; 2: in blocks
inline constexpr Field<quint32> resetInterval{0x0C};
inline constexpr Field<quint32> windowSize{0x10};
inline constexpr Field<quint32> windowsPerReset{0x14};
inline constexpr qsizetype size = 0x18;

} // namespace controlData

namespace resetTable {

inline constexpr Field<quint32> blockCount{0x04};
inline constexpr Field<quint32> firstBlock{
    0x0C}; ///< where the entries begin, from the table's start
inline constexpr Field<quint64> compressedSize{0x18};
inline constexpr Field<quint64> blockSize{0x20}; ///< before compression
inline constexpr qsizetype size = 0x28;          ///< of what stands before the entries
inline constexpr qsizetype entrySize = 8; ///< where a block begins among the compressed bytes

} // namespace resetTable

} // namespace vellumo
