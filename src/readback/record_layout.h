#pragma once

#include "readback/byte_reader.h"

#include <span>

namespace vellumo {

/// A number in a record: where it stands, and the member that takes it. Without a member it is a
/// constant that every file has there.
template <typename T> struct StoredNumber {
    qsizetype offset; ///< in bytes from the start of the record
    qsizetype size;   ///< 1 to 4 bytes
    quint32 T::*member = nullptr;
    quint32 constant = 0;
};

/// What stands where in a record of a binary file. Bytes that belong to no number are zero.
///
/// Made at compile time alone, from numbers in the order of their offsets; numbers that overlap or
/// leave the record do not compile.
template <typename T> class RecordLayout
{
public:
    consteval RecordLayout(qsizetype size, std::span<const StoredNumber<T>> numbers)
        : m_size(size), m_numbers(numbers)
    {
        qsizetype end = 0;
        for (const StoredNumber<T> &number : numbers) {
            if (number.offset < end || number.size < 1 || number.size > 4)
                throw "this number cannot stand here";
            end = number.offset + number.size;
        }
        if (end > size)
            throw "the last number leaves the record";
    }

    /// Takes a record to its last byte; the members that are not named stay as they are.
    void Take(ByteReader &reader, T &target) const
    {
        qsizetype taken = 0;
        for (const StoredNumber<T> &number : m_numbers) {
            reader.PassZeros(number.offset - taken);
            if (number.member)
                target.*number.member = reader.TakeNumber(number.size);
            else
                reader.PassNumber(number.size, number.constant);
            taken = number.offset + number.size;
        }
        reader.PassZeros(m_size - taken);
    }

private:
    qsizetype m_size;
    std::span<const StoredNumber<T>> m_numbers;
};

} // namespace vellumo
