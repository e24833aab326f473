#include "help/reader/compression_check.h"

#include "help/archive_format.h"
#include "help/reader/compression_format.h"
#include "help/reader/file_bytes.h"

#include <bit>

namespace vellumo {
namespace {

constexpr quint32 blockSize = 0x8000;
/// A block that cannot be made smaller grows a little.
constexpr quint64 longestBlock = blockSize + 6144;
constexpr quint32 largestWindow = 0x200000;
constexpr quint64 largestTable = 16 << 20;

/// The window is a power of two, and the decoder starts anew after so many halves of it.
bool IsSoundControlData(const QByteArray &data)
{
    if (data.size() < controlData::size)
        return false;
    const auto version = Get(data, controlData::version);
    const quint64 unit = version == 2 ? blockSize : 1;
    const quint64 window = Get(data, controlData::windowSize) * unit;
    const quint64 resetInterval = Get(data, controlData::resetInterval) * unit;
    const auto windowsPerReset = Get(data, controlData::windowsPerReset);
    return (version == 1 || version == 2) && std::has_single_bit(window) && window >= blockSize &&
           window <= largestWindow && resetInterval >= window / 2 &&
           resetInterval <= largestWindow && resetInterval % (window / 2) == 0 &&
           windowsPerReset >= 1 && windowsPerReset <= largestWindow / blockSize;
}

/// Each block ends where the next one begins, the last one with the compressed bytes.
bool AreSoundBlocks(const QByteArray &table, qsizetype first, quint32 count)
{
    for (quint32 block = 0; block < count; ++block) {
        const qsizetype at = first + qsizetype(block) * resetTable::entrySize;
        const auto start = LittleAt<quint64>(table, at);
        const auto end = block + 1 < count ? LittleAt<quint64>(table, at + resetTable::entrySize)
                                           : Get(table, resetTable::compressedSize);
        if (end < start || end - start > longestBlock)
            return false;
    }
    return true;
}

/// The bytes of an object that must be stored as it stands.
std::optional<QByteArray> StoredBytes(QIODevice &file, const ArchiveHeader &header,
                                      const ObjectPlace &place)
{
    if (place.section != archive::storedSection || place.length > largestTable)
        return std::nullopt;
    return BytesAt(file, header.contentStart + place.offset, place.length);
}

} // namespace

std::optional<quint64> SizeBeforeCompression(const QByteArray &control, const QByteArray &table)
{
    if (!IsSoundControlData(control) || table.size() < resetTable::size ||
        Get(table, resetTable::blockSize) != blockSize)
        return std::nullopt;
    const auto count = Get(table, resetTable::blockCount);
    const auto first = Get(table, resetTable::firstBlock);
    const auto size = quint64(table.size());
    if (count == 0 || first > size || (size - first) / resetTable::entrySize < count ||
        !AreSoundBlocks(table, qsizetype(first), count))
        return std::nullopt;
    return quint64(count) * blockSize;
}

bool IsCompressionSound(QIODevice &file, const ArchiveHeader &header,
                        const ObjectDirectory &objects)
{
    const auto controlPlace = objects.Find(controlDataName);
    const auto tablePlace = objects.Find(resetTableName);
    if (!controlPlace && !tablePlace)
        return true; // without both of them, nothing is ever decompressed
    if (!controlPlace || !tablePlace)
        return false;
    const auto control = StoredBytes(file, header, *controlPlace);
    const auto table = StoredBytes(file, header, *tablePlace);
    const auto size = control && table ? SizeBeforeCompression(*control, *table) : std::nullopt;
    return size && objects.EndOf(archive::compressedSection) <= *size;
}

} // namespace vellumo
