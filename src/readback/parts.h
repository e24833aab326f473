#pragma once

#include "readback/byte_reader.h"

#include <span>

namespace vellumo {

/// What stands at one place of a binary layout: the value of a member, or without a member a
/// constant of up to 4 bytes, or zeros of any size.
template <typename T> struct Part {
    qsizetype size;
    quint32 T::*value = nullptr;
    quint32 constant = 0;
};

template <typename T> void TakeParts(ByteReader &reader, std::span<const Part<T>> parts, T &target)
{
    for (const Part<T> &part : parts) {
        if (part.value)
            target.*part.value = reader.TakeNumber(part.size);
        else if (part.constant != 0)
            reader.PassNumber(part.size, part.constant);
        else
            reader.PassZeros(part.size);
    }
}

} // namespace vellumo
