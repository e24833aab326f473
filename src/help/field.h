#pragma once

#include "help/little_endian.h"

#include <type_traits>

namespace vellumo {

/// A number of a structure: its width, and where its lowest byte stands.
template <typename Number> struct Field {
    qsizetype offset; ///< from the beginning of the structure
};

/// All bytes of the field must exist.
template <typename Number> Number Get(QByteArrayView structure, Field<Number> field)
{
    return LittleAt<Number>(structure, field.offset);
}

/// All bytes of the field must exist.
template <typename Number>
void Put(QByteArray &structure, Field<Number> field, std::type_identity_t<Number> value)
{
    Q_ASSERT(field.offset >= 0 && structure.size() - field.offset >= qsizetype(sizeof(Number)));
    qToLittleEndian(value, structure.data() + field.offset);
}

/// A structure of so many bytes that are zero but for the tag at its beginning.
inline QByteArray Tagged(QByteArrayView tag, qsizetype size)
{
    return tag.toByteArray().leftJustified(size, '\0');
}

} // namespace vellumo
