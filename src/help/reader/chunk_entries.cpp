#include "help/reader/chunk_entries.h"

#include "help/archive_format.h"

#include <algorithm>

namespace vellumo {

using namespace archive;

namespace {

constexpr qsizetype mostGroups = 9; // of seven bits, so that no number is too large for its type

} // namespace

std::optional<ChunkEntries> ChunkEntries::Of(QByteArrayView chunk, qsizetype headerSize)
{
    const auto free = Get(chunk, chunk::freeBytes);
    const QByteArrayView body = chunk.sliced(headerSize);
    if (free > quint64(body.size()))
        return std::nullopt;
    return ChunkEntries(body.chopped(qsizetype(free)));
}

std::optional<QByteArrayView> ChunkEntries::Name()
{
    const auto length = Number();
    if (!length || *length > quint64(longestName) || *length > quint64(m_rest.size()))
        return std::nullopt;
    const QByteArrayView name = m_rest.first(qsizetype(*length));
    m_rest = m_rest.sliced(name.size());
    return name;
}

std::optional<quint64> ChunkEntries::Number()
{
    quint64 number = 0;
    for (qsizetype i = 0; i < std::min(mostGroups, m_rest.size()); ++i) {
        const auto group = static_cast<unsigned char>(m_rest[i]);
        number = number << 7 | (group & 0x7F);
        if (group < 0x80) {
            m_rest = m_rest.sliced(i + 1);
            return number;
        }
    }
    return std::nullopt;
}

} // namespace vellumo
