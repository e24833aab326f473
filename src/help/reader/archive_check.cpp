#include "help/reader/archive_check.h"

#include "help/archive_format.h"
#include "help/reader/compression_check.h"
#include "help/reader/compression_format.h"

#include <QIODevice>

#include <optional>
#include <vector>

namespace vellumo {

using namespace archive;

namespace {

constexpr quint32 smallestChunk = 64;
constexpr quint32 largestChunk = 0x10000;
constexpr qint64 largestDirectory = 64 << 20;
constexpr qint64 largestTable = 16 << 20;
constexpr int deepestIndex = 8;

/// Exactly so many bytes of the file, or none.
std::optional<QByteArray> BytesAt(QIODevice &file, quint64 offset, qint64 count)
{
    if (offset > quint64(file.size()) || !file.seek(qint64(offset)))
        return std::nullopt;
    QByteArray bytes = file.read(count);
    return bytes.size() == count ? std::optional(bytes) : std::nullopt;
}

/// The entries of a chunk, read one number after the other.
class EntryReader
{
public:
    explicit EntryReader(QByteArrayView entries) : m_rest(entries) {}

    bool AtEnd() const { return m_rest.isEmpty(); }

    std::optional<QByteArrayView> Name()
    {
        const auto length = Number();
        if (!length || *length > quint64(longestName) || *length > quint64(m_rest.size()))
            return std::nullopt;
        const QByteArrayView name = m_rest.first(qsizetype(*length));
        m_rest = m_rest.sliced(name.size());
        return name;
    }

    /// Of at most nine groups of seven bits, so that it cannot overflow.
    std::optional<quint64> Number()
    {
        quint64 number = 0;
        for (qsizetype i = 0; i < std::min<qsizetype>(9, m_rest.size()); ++i) {
            const auto group = static_cast<unsigned char>(m_rest[i]);
            number = number << 7 | (group & 0x7F);
            if (group < 0x80) {
                m_rest = m_rest.sliced(i + 1);
                return number;
            }
        }
        return std::nullopt;
    }

private:
    QByteArrayView m_rest;
};

class DirectoryCheck
{
public:
    explicit DirectoryCheck(QIODevice &file) : m_file(file) {}

    bool Passes()
    {
        return ReadHeader() && ReadDirectoryHeader() && CheckChunk(m_root, 1) &&
               IsCompressionSound();
    }

private:
    bool ReadHeader()
    {
        const auto header = BytesAt(m_file, 0, header::size);
        if (!header || !header->startsWith(header::tag))
            return false;
        const auto version = Get(*header, header::version);
        m_directory = Get(*header, header::directoryStart);
        m_directoryLength = Get(*header, header::directoryLength);
        m_content =
            version == 2 ? m_directory + m_directoryLength : Get(*header, header::contentStart);
        m_size = quint64(m_file.size());
        return (version == 2 || version == 3) && m_directory <= m_size &&
               m_directoryLength <= m_size - m_directory && m_content <= m_size &&
               m_directoryLength >= quint64(directory::size) &&
               m_directoryLength <= quint64(largestDirectory);
    }

    bool ReadDirectoryHeader()
    {
        const auto header = BytesAt(m_file, m_directory, directory::size);
        if (!header || !header->startsWith(directory::tag))
            return false;
        m_chunkSize = Get(*header, directory::chunkSize);
        m_root = Get(*header, directory::root);
        if (m_root < 0)
            m_root = Get(*header, directory::firstListing);
        if (Get(*header, directory::length) != directory::size || m_chunkSize < smallestChunk ||
            m_chunkSize > largestChunk)
            return false;
        m_seen.resize((m_directoryLength - directory::size) / m_chunkSize);
        return true;
    }

    bool CheckChunk(qint64 number, int depth)
    {
        if (number < 0 || number >= qint64(m_seen.size()) || m_seen[std::size_t(number)] ||
            depth > deepestIndex)
            return false;
        m_seen[std::size_t(number)] = true;
        const quint64 offset = m_directory + directory::size + quint64(number) * m_chunkSize;
        const auto chunk = BytesAt(m_file, offset, m_chunkSize);
        if (!chunk)
            return false;
        if (chunk->startsWith(listing::tag))
            return CheckListing(*chunk);
        return chunk->startsWith(index::tag) && CheckIndex(*chunk, depth);
    }

    /// What stands between the chunk's header and its free bytes.
    static std::optional<EntryReader> EntriesOf(QByteArrayView chunk, qsizetype header)
    {
        const quint32 free = Get(chunk, chunk::freeBytes);
        if (free > quint64(chunk.size() - header))
            return std::nullopt;
        return EntryReader(chunk.sliced(header, chunk.size() - header - free));
    }

    bool CheckListing(QByteArrayView chunk)
    {
        auto entries = EntriesOf(chunk, listing::size);
        while (entries && !entries->AtEnd()) {
            const auto name = entries->Name();
            const auto section = entries->Number(), offset = entries->Number(),
                       length = entries->Number();
            if (!name || !length || !IsSoundObject(*name, *section, *offset, *length))
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
        const quint64 room = m_size - m_content;
        return offset <= room && length <= room - offset;
    }

    /// Keeps what steers the decompression; there may be only one of each.
    bool Keep(QByteArrayView name, quint64 offset, quint64 length)
    {
        QByteArray *kept = name.compare(controlDataName, Qt::CaseInsensitive) == 0  ? &m_controlData
                           : name.compare(resetTableName, Qt::CaseInsensitive) == 0 ? &m_resetTable
                                                                                    : nullptr;
        if (!kept)
            return true;
        const auto bytes = length <= quint64(largestTable)
                               ? BytesAt(m_file, m_content + offset, qint64(length))
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
        auto entries = EntriesOf(chunk, index::size);
        while (entries && !entries->AtEnd()) {
            const auto name = entries->Name();
            const auto below = entries->Number();
            if (!name || !below || *below >= m_seen.size() ||
                !CheckChunk(qint64(*below), depth + 1))
                return false;
        }
        return entries.has_value();
    }

    QIODevice &m_file;
    quint64 m_size = 0;
    quint64 m_directory = 0;
    quint64 m_directoryLength = 0;
    quint64 m_content = 0;
    quint32 m_chunkSize = 0;
    qint64 m_root = 0;
    std::vector<bool> m_seen;
    quint64 m_compressedEnd = 0; ///< among all compressed objects
    QByteArray m_controlData;
    QByteArray m_resetTable;
};

} // namespace

bool IsSoundArchive(QIODevice &file)
{
    return DirectoryCheck(file).Passes();
}

} // namespace vellumo
