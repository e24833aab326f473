#pragma once

#include <QByteArray>

#include <vector>

namespace vellumo {

inline constexpr qsizetype chunkSize = 0x1000;
/// A chunk marks every entry of a number that can be divided by 1 + 2^density.
inline constexpr quint32 chunkDensity = 2;

/// A chunk of the directory that is being filled.
class Chunk
{
public:
    /// The tag must live as long.
    Chunk(QByteArrayView tag, qsizetype headerSize) : m_tag(tag), m_headerSize(headerSize) {}

    bool HasRoomFor(const QByteArray &entry) const;
    /// There must be room for it.
    void Add(const QByteArray &entry);

    /// All chunkSize bytes; of the header, the tag and the number of free bytes.
    QByteArray Bytes() const;

private:
    QByteArrayView m_tag;
    qsizetype m_headerSize;
    QByteArray m_entries;
    std::vector<quint16> m_starts; ///< of the entries, from the first one on
};

} // namespace vellumo
