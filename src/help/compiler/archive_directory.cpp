#include "help/compiler/archive_directory.h"

#include "help/archive_format.h"
#include "help/little_endian.h"

#include <algorithm>

namespace vellumo {

using namespace archive;

namespace {

/// A number in groups of seven bits, the highest first; all but the last have the top bit set.
void AppendPacked(QByteArray &bytes, quint64 number)
{
    QByteArray groups(1, char(number & 0x7F));
    while (number >>= 7)
        groups.prepend(char(0x80 | (number & 0x7F)));
    bytes += groups;
}

void AppendName(QByteArray &bytes, const QByteArray &name)
{
    AppendPacked(bytes, quint64(name.size()));
    bytes += name;
}

/// Entries that are to stand in one chunk.
struct Chunk {
    qsizetype headerLength;
    QByteArray firstName;
    std::vector<QByteArray> entries = {};
    qsizetype length = 0;

    static qsizetype TailLength(std::size_t count)
    {
        return 2 + 2 * ((qsizetype(count) - 1) / entriesPerMark);
    }

    bool HasRoomFor(const QByteArray &entry) const
    {
        return headerLength + length + entry.size() + TailLength(entries.size() + 1) <= chunkSize;
    }

    void Add(const QByteArray &entry)
    {
        entries.push_back(entry);
        length += entry.size();
    }

    quint32 FreeBytes() const { return quint32(chunkSize - headerLength - length); }

    /// Everything behind the chunk's header.
    QByteArray Body() const
    {
        QByteArray body, tail;
        for (std::size_t i = 0; i < entries.size(); ++i) {
            if (i && i % entriesPerMark == 0) {
                QByteArray mark;
                AppendLittle(mark, quint16(body.size()));
                tail.prepend(mark);
            }
            body += entries[i];
        }
        AppendLittle(tail, quint16(entries.size()));
        return body + QByteArray(qsizetype(FreeBytes()) - tail.size(), '\0') + tail;
    }
};

std::vector<Chunk> FillListings(const std::vector<ArchiveEntry> &entries)
{
    std::vector<Chunk> chunks;
    for (const ArchiveEntry &entry : entries) {
        QByteArray bytes;
        AppendName(bytes, entry.path);
        AppendPacked(bytes, 0); // not compressed
        AppendPacked(bytes, entry.offset);
        AppendPacked(bytes, entry.length);
        if (chunks.empty() || !chunks.back().HasRoomFor(bytes))
            chunks.push_back({listingHeaderSize, entry.path});
        chunks.back().Add(bytes);
    }
    return chunks;
}

QByteArray WriteListing(const Chunk &chunk, qint32 number, bool isLast)
{
    QByteArray bytes(listingTag);
    AppendLittle(bytes, chunk.FreeBytes());
    AppendLittle(bytes, quint32(0));
    AppendLittle(bytes, number - 1);
    AppendLittle(bytes, isLast ? -1 : number + 1);
    return bytes + chunk.Body();
}

QByteArray WriteIndex(const std::vector<Chunk> &listings)
{
    Chunk index{indexHeaderSize, {}};
    for (std::size_t i = 0; i < listings.size(); ++i) {
        QByteArray entry;
        AppendName(entry, listings[i].firstName);
        AppendPacked(entry, i);
        Q_ASSERT(index.HasRoomFor(entry));
        index.Add(entry);
    }
    QByteArray bytes(indexTag);
    AppendLittle(bytes, index.FreeBytes());
    return bytes + index.Body();
}

QByteArray WriteHeader(qint32 listings, qint32 chunks)
{
    const bool hasIndex = chunks > listings;
    QByteArray bytes(directoryTag);
    for (const quint32 field : {1u, quint32(directoryHeaderSize), 10u, quint32(chunkSize), 2u})
        AppendLittle(bytes, field);
    for (const qint32 field : {hasIndex ? 2 : 1, hasIndex ? listings : -1, 0, listings - 1, -1})
        AppendLittle(bytes, field);
    AppendLittle(bytes, quint32(chunks));
    AppendLittle(bytes, english);
    bytes.append(reinterpret_cast<const char *>(chunksGuid.data()), chunksGuid.size());
    AppendLittle(bytes, quint32(directoryHeaderSize));
    for (int i = 0; i < 3; ++i)
        AppendLittle(bytes, qint32(-1));
    Q_ASSERT(bytes.size() == directoryHeaderSize);
    return bytes;
}

} // namespace

QByteArray WriteDirectory(std::vector<ArchiveEntry> entries)
{
    std::ranges::sort(entries, {}, [](const ArchiveEntry &entry) { return entry.path.toLower(); });
    const std::vector<Chunk> listings = FillListings(entries);
    const qint32 count = qint32(listings.size());
    QByteArray chunks;
    for (qint32 i = 0; i < count; ++i)
        chunks += WriteListing(listings[std::size_t(i)], i, i + 1 == count);
    if (count > 1)
        chunks += WriteIndex(listings);
    return WriteHeader(count, qint32(chunks.size() / chunkSize)) + chunks;
}

} // namespace vellumo
