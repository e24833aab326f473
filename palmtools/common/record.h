#pragma once

#include "palmtools/common/bytes.h"

namespace palmtools {

/// A part of fixed size that is added to some bytes: zero, but for what is put into it.
///
/// Offsets count from the beginning of the part, and what is put there must lie within it. The
/// bytes must outlive the record; they may grow while it is filled in.
class Record
{
public:
    Record(Bytes &bytes, std::size_t size) : m_bytes(bytes), m_begin(bytes.size())
    {
        AppendZeros(bytes, size);
    }

    // Numbers are big-endian; the low bits of the value count, as in bytes.h.

    void Put8(std::size_t offset, std::int64_t value)
    {
        m_bytes[m_begin + offset] = static_cast<char>(static_cast<unsigned char>(value & 0xFF));
    }
    void Put16(std::size_t offset, std::int64_t value)
    {
        Put8(offset, value >> 8);
        Put8(offset + 1, value);
    }
    void Put32(std::size_t offset, std::int64_t value)
    {
        Put16(offset, value >> 16);
        Put16(offset + 2, value);
    }

    /// The text without an end; zero bytes follow it as far as the record has them.
    void PutText(std::size_t offset, std::string_view text)
    {
        m_bytes.replace(m_begin + offset, text.size(), text);
    }

private:
    Bytes &m_bytes;
    std::size_t m_begin;
};

} // namespace palmtools
