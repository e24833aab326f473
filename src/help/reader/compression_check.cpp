#include "help/reader/compression_check.h"

#include "help/little_endian.h"

#include <bit>

namespace vellumo {
namespace {

constexpr quint32 blockSize = 0x8000;
/// A block that cannot be made smaller grows a little.
constexpr quint64 longestBlock = blockSize + 6144;
constexpr quint32 largestWindow = 0x200000;
constexpr qsizetype controlDataSize = 0x18;
constexpr qsizetype resetTableSize = 0x28;

bool IsSoundControlData(const QByteArray &data)
{
    if (data.size() < controlDataSize)
        return false;
    const auto version = LittleAt<quint32>(data, 8);
    const quint64 unit = version == 2 ? blockSize : 1;
    const quint64 resetInterval = LittleAt<quint32>(data, 12) * unit;
    const quint64 window = LittleAt<quint32>(data, 16) * unit;
    const auto windowsPerReset = LittleAt<quint32>(data, 20);
    return (version == 1 || version == 2) && std::has_single_bit(window) && window >= blockSize &&
           window <= largestWindow && resetInterval >= window / 2 &&
           resetInterval <= largestWindow && resetInterval % (window / 2) == 0 &&
           windowsPerReset >= 1 && windowsPerReset <= largestWindow / blockSize;
}

/// Each block ends where the next one begins, the last one with the compressed bytes.
bool AreSoundBlocks(const QByteArray &table, qsizetype first, quint32 count)
{
    for (quint32 block = 0; block < count; ++block) {
        const qsizetype at = first + qsizetype(block) * 8;
        const auto start = LittleAt<quint64>(table, at);
        const auto end = LittleAt<quint64>(table, block + 1 < count ? at + 8 : 0x18);
        if (end < start || end - start > longestBlock)
            return false;
    }
    return true;
}

} // namespace

std::optional<quint64> SizeBeforeCompression(const QByteArray &controlData,
                                             const QByteArray &resetTable)
{
    if (!IsSoundControlData(controlData) || resetTable.size() < resetTableSize ||
        LittleAt<quint64>(resetTable, 0x20) != blockSize)
        return std::nullopt;
    const auto count = LittleAt<quint32>(resetTable, 4), first = LittleAt<quint32>(resetTable, 12);
    const quint64 size = quint64(resetTable.size());
    if (count == 0 || first > size || (size - first) / 8 < count ||
        !AreSoundBlocks(resetTable, qsizetype(first), count))
        return std::nullopt;
    return quint64(count) * blockSize;
}

} // namespace vellumo
