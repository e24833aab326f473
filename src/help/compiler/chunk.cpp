#include "help/compiler/chunk.h"

#include "help/archive_format.h"

namespace vellumo {

using namespace archive;

namespace {

constexpr std::size_t entriesPerMark = 1 + (1 << chunkDensity);

/// The number of entries, and a mark each time that so many of them stand before another one.
qsizetype TailSize(std::size_t entries)
{
    return qsizetype(sizeof(quint16)) * qsizetype(1 + (entries - 1) / entriesPerMark);
}

} // namespace

bool Chunk::HasRoomFor(const QByteArray &entry) const
{
    return m_headerSize + m_entries.size() + entry.size() + TailSize(m_starts.size() + 1) <=
           chunkSize;
}

void Chunk::Add(const QByteArray &entry)
{
    Q_ASSERT(HasRoomFor(entry));
    m_starts.push_back(quint16(m_entries.size()));
    m_entries += entry;
}

QByteArray Chunk::Bytes() const
{
    QByteArray bytes = Tagged(m_tag, m_headerSize) + m_entries;
    Put(bytes, chunk::freeBytes, quint32(chunkSize - bytes.size()));
    bytes.resize(chunkSize, '\0');
    // Written from the end of the chunk to the front, so that a reader finds the count in one
    // place.
    qsizetype at = chunkSize - qsizetype(sizeof(quint16));
    Put(bytes, Field<quint16>{at}, quint16(m_starts.size()));
    for (std::size_t entry = entriesPerMark; entry < m_starts.size(); entry += entriesPerMark) {
        at -= qsizetype(sizeof(quint16));
        Put(bytes, Field<quint16>{at}, m_starts[entry]);
    }
    return bytes;
}

} // namespace vellumo
