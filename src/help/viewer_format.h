#pragma once

#include "help/field.h"

#include <QLatin1StringView>

namespace vellumo {

// What a compiled help file tells its viewer, as docs/help-file.md has it in tables: names of
// objects, each without the slash before it, and their structures.

/// The version of #SYSTEM, 4 bytes, and then items to its end.
namespace systemObject {

inline constexpr QLatin1StringView name{"#SYSTEM"};
inline constexpr Field<quint32> version{0};
inline constexpr qsizetype firstItem = 4;

namespace item {

inline constexpr Field<quint16> code{0};
inline constexpr Field<quint16> length{2}; ///< of the data, which follow
inline constexpr qsizetype headerSize = 4;

} // namespace item

enum Code : quint16 {
    contentsFile = 0,
    defaultPage = 2,
    title = 3,
    language = 4,
    compiler = 9,
    timeStamp = 10
};

} // namespace systemObject

/// The pages of context numbers: the length of all pairs, 4 bytes, and then the pairs.
namespace contextObject {

inline constexpr QLatin1StringView name{"#IVB"};
inline constexpr Field<quint32> length{0};
inline constexpr qsizetype firstPair = 4;

namespace pair {

inline constexpr Field<quint32> number{0};
inline constexpr Field<quint32> page{4}; ///< where its name begins in #STRINGS
inline constexpr qsizetype size = 8;

} // namespace pair

} // namespace contextObject

/// Texts that end in a zero byte; others point into them.
inline constexpr QLatin1StringView stringsName{"#STRINGS"};

/// Empty in files of ours.
inline constexpr QLatin1StringView bitsName{"#ITBITS"};

} // namespace vellumo
