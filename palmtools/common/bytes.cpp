#include "palmtools/common/bytes.h"

namespace palmtools {

void AppendZeros(Bytes &bytes, std::size_t count)
{
    bytes.append(count, '\0');
}

void AppendByte(Bytes &bytes, std::int64_t value)
{
    bytes += static_cast<char>(static_cast<unsigned char>(value & 0xFF));
}

void AppendBigEndian16(Bytes &bytes, std::int64_t value)
{
    AppendByte(bytes, value >> 8);
    AppendByte(bytes, value);
}

void AppendBigEndian32(Bytes &bytes, std::int64_t value)
{
    AppendBigEndian16(bytes, value >> 16);
    AppendBigEndian16(bytes, value);
}

void AppendZeroEnded(Bytes &bytes, std::string_view text)
{
    bytes += text;
    bytes += '\0';
}

void PadToEven(Bytes &bytes)
{
    if (bytes.size() % 2 != 0)
        bytes += '\0';
}

std::uint16_t BigEndian16At(std::string_view bytes, std::size_t offset)
{
    const auto high = static_cast<unsigned char>(bytes[offset]);
    const auto low = static_cast<unsigned char>(bytes[offset + 1]);
    return static_cast<std::uint16_t>(high << 8 | low);
}

std::uint32_t BigEndian32At(std::string_view bytes, std::size_t offset)
{
    const std::uint32_t high = BigEndian16At(bytes, offset);
    return high << 16 | BigEndian16At(bytes, offset + 2);
}

} // namespace palmtools
