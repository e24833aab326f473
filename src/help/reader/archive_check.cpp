#include "help/reader/archive_check.h"

#include "help/archive_format.h"
#include "help/reader/archive_header.h"
#include "help/reader/chunk_entries.h"
#include "help/reader/compression_check.h"
#include "help/reader/compression_format.h"
#include "help/reader/file_bytes.h"

#include <QIODevice>

#include <vector>

namespace vellumo {

using namespace archive;

namespace {

constexpr quint64 largestTable = 16 << 20;
constexpr int deepestIndex = 8;

class DirectoryCheck
{
public:
    DirectoryCheck(QIODevice &file, const ArchiveHeader &header)
        : m_file(file), m_header(header), m_seen(header.chunkCount)
    {}

    bool Passes() { return CheckChunk(m_header.rootChunk, 1) && IsCompressionSound(); }

private:
    bool CheckChunk(qint64 number, int depth)
    {
        if (number < 0 || quint64(number) >= m_header.chunkCount || m_seen[std::size_t(number)] ||
            depth > deepestIndex)
            return false;
        m_seen[std::size_t(number)] = true;
        const auto chunk =
            BytesAt(m_file, m_header.chunksStart + quint64(number) * m_header.chunkSize,
                    m_header.chunkSize);
        if (!chunk)
            return false;
        if (chunk->startsWith(listing::tag))
            return CheckListing(*chunk);
        return chunk->startsWith(index::tag) && CheckIndex(*chunk, depth);
    }

    bool CheckListing(QByteArrayView chunk)
    {
        auto entries = ChunkEntries::Of(chunk, listing::size);
        while (entries && !entries->AtEnd()) {
            const auto name = entries->Name();
            const auto section = entries->Number(), offset = entries->Number(),
                       length = entries->Number();
            if (!name || !section || !offset || !length ||
                !IsSoundObject(*name, *section, *offset, *length))
                return false;
        }
        return entries.has_value();
    }

    bool IsSoundObject(QByteArrayView name, quint64 section, quint64 offset, quint64 length)
    {
        if (section == storedSection)
            return IsWithinFile(offset, length) && Keep(name, offset, length);
        // Both are numbers of at most 63 bits.
        m_compressedEnd = std::max(m_compressedEnd, offset + length);
        return section == compressedSection;
    }

    bool IsWithinFile(quint64 offset, quint64 length) const
    {
        return offset <= m_header.contentLength && length <= m_header.contentLength - offset;
    }

    /// Keeps what steers the decompression; there may be only one of each.
    bool Keep(QByteArrayView name, quint64 offset, quint64 length)
    {
        QByteArray *kept = name.compare(controlDataName, Qt::CaseInsensitive) == 0  ? &m_controlData
                           : name.compare(resetTableName, Qt::CaseInsensitive) == 0 ? &m_resetTable
                                                                                    : nullptr;
        if (!kept)
            return true;
        const auto bytes = length <= largestTable
                               ? BytesAt(m_file, m_header.contentStart + offset, length)
                               : std::nullopt;
        if (!kept->isEmpty() || !bytes || bytes->isEmpty())
            return false;
        *kept = *bytes;
        return true;
    }

    /// A reader that finds neither of the two objects decompresses nothing.
    bool IsCompressionSound() const
    {
        if (m_controlData.isEmpty() && m_resetTable.isEmpty())
            return true;
        const auto size = SizeBeforeCompression(m_controlData, m_resetTable);
        return size && m_compressedEnd <= *size;
    }

    bool CheckIndex(QByteArrayView chunk, int depth)
    {
        auto entries = ChunkEntries::Of(chunk, index::size);
        while (entries && !entries->AtEnd()) {
            const auto name = entries->Name();
            const auto below = entries->Number();
            if (!name || !below || !CheckChunk(qint64(*below), depth + 1))
                return false;
        }
        return entries.has_value();
    }

    QIODevice &m_file;
    const ArchiveHeader &m_header;
    std::vector<bool> m_seen;
    quint64 m_compressedEnd = 0; ///< among all compressed objects
    QByteArray m_controlData;
    QByteArray m_resetTable;
};

} // namespace

bool IsSoundArchive(QIODevice &file)
{
    const auto header = ReadArchiveHeader(file);
    return header && DirectoryCheck(file, *header).Passes();
}

} // namespace vellumo
