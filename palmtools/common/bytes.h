#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace palmtools {

/// The content of a file or of a part of one; no coding is implied.
using Bytes = std::string;

void AppendZeros(Bytes &bytes, std::size_t count);

// The low bits of the value count, so that a negative one is stored as two's complement.

void AppendByte(Bytes &bytes, std::int64_t value);
void AppendBigEndian16(Bytes &bytes, std::int64_t value);
void AppendBigEndian32(Bytes &bytes, std::int64_t value);

/// The text and the zero byte that ends it.
void AppendZeroEnded(Bytes &bytes, std::string_view text);

/// Adds a zero byte if the size is odd.
void PadToEven(Bytes &bytes);

// All bytes from the offset on must exist.

std::uint16_t BigEndian16At(std::string_view bytes, std::size_t offset);
std::uint32_t BigEndian32At(std::string_view bytes, std::size_t offset);

} // namespace palmtools
