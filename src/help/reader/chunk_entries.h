#pragma once

#include <QByteArrayView>

#include <optional>

namespace vellumo {

/// The entries of a chunk of the directory, read one value after the other. After a value that is
/// none the rest means nothing.
class ChunkEntries
{
public:
    /// Of a whole chunk, which must live as long, with a header of so many bytes; none where more
    /// bytes are said to be free than follow the header.
    static std::optional<ChunkEntries> Of(QByteArrayView chunk, qsizetype headerSize);

    bool AtEnd() const { return m_rest.isEmpty(); }

    /// None where it is too long or does not end in the chunk.
    std::optional<QByteArrayView> Name();
    /// Less than 2^63; none where it is larger or does not end in the chunk.
    std::optional<quint64> Number();

private:
    explicit ChunkEntries(QByteArrayView entries) : m_rest(entries) {}

    QByteArrayView m_rest;
};

} // namespace vellumo
