#include "help/compression_check.h"

#include "help/little_endian.h"

#include <bit>

namespace {

constexpr quint32 blockSize = 0x8000;
constexpr quint32 largestWindow = 0x200000;
constexpr qsizetype controlDataSize = 0x18;
constexpr qsizetype resetTableSize = 0x28;

} // namespace

bool IsSoundCompression(const QByteArray &controlData, const QByteArray &resetTable)
{
    if (controlData.isEmpty() && resetTable.isEmpty())
        return true;
    if (controlData.size() < controlDataSize || resetTable.size() < resetTableSize)
        return false;

    const auto version = LittleAt<quint32>(controlData, 8);
    const quint64 unit = version == 2 ? blockSize : 1;
    const quint64 resetInterval = LittleAt<quint32>(controlData, 12) * unit;
    const quint64 window = LittleAt<quint32>(controlData, 16) * unit;
    const auto windowsPerReset = LittleAt<quint32>(controlData, 20);
    return (version == 1 || version == 2) && std::has_single_bit(window) && window >= blockSize &&
           window <= largestWindow && resetInterval >= window / 2 &&
           resetInterval <= largestWindow && resetInterval % (window / 2) == 0 &&
           windowsPerReset >= 1 && windowsPerReset <= largestWindow / blockSize &&
           LittleAt<quint64>(resetTable, 0x20) == blockSize;
}
