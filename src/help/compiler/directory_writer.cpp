#include "help/compiler/directory_writer.h"

#include "help/archive_format.h"
#include "help/compiler/chunk.h"

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

QByteArray PackedName(const QByteArray &name)
{
    QByteArray bytes;
    AppendPacked(bytes, quint64(name.size()));
    return bytes + name;
}

struct Listing {
    QByteArray firstName;
    Chunk chunk{listing::tag, listing::size};
};

std::vector<Listing> FillListings(const std::vector<ArchiveEntry> &entries)
{
    std::vector<Listing> listings;
    for (const ArchiveEntry &entry : entries) {
        QByteArray bytes = PackedName(entry.path);
        for (const quint64 number : {quint64(storedSection), entry.offset, entry.length})
            AppendPacked(bytes, number);
        if (listings.empty() || !listings.back().chunk.HasRoomFor(bytes))
            listings.push_back({entry.path});
        listings.back().chunk.Add(bytes);
    }
    return listings;
}

QByteArray WriteListings(const std::vector<Listing> &listings)
{
    QByteArray all;
    const qint32 count = qint32(listings.size());
    for (qint32 number = 0; number < count; ++number) {
        QByteArray bytes = listings[std::size_t(number)].chunk.Bytes();
        Put(bytes, listing::previous, number - 1);
        Put(bytes, listing::next, number + 1 == count ? none : number + 1);
        all += bytes;
    }
    return all;
}

QByteArray WriteIndex(const std::vector<Listing> &listings)
{
    Chunk chunk{index::tag, index::size};
    for (std::size_t number = 0; number < listings.size(); ++number) {
        QByteArray entry = PackedName(listings[number].firstName);
        AppendPacked(entry, number);
        chunk.Add(entry);
    }
    return chunk.Bytes();
}

QByteArray WriteHeader(qint32 listings, qint32 chunks)
{
    const bool hasIndex = chunks > listings;
    QByteArray bytes = Tagged(directory::tag, directory::size);
    Put(bytes, directory::version, 1);
    Put(bytes, directory::length, quint32(directory::size));
    Put(bytes, directory::alwaysTen, 10);
    Put(bytes, directory::chunkSize, quint32(chunkSize));
    Put(bytes, directory::density, chunkDensity);
    Put(bytes, directory::depth, hasIndex ? 2 : 1);
    Put(bytes, directory::root, hasIndex ? listings : none); // the index follows the listings
    Put(bytes, directory::firstListing, 0);
    Put(bytes, directory::lastListing, listings - 1);
    Put(bytes, directory::unused, none);
    Put(bytes, directory::chunkCount, quint32(chunks));
    Put(bytes, directory::language, english);
    PutGuid(bytes, directory::guid, chunksGuid);
    Put(bytes, directory::lengthAgain, quint32(directory::size));
    for (const auto &field : directory::alwaysNone)
        Put(bytes, field, none);
    return bytes;
}

} // namespace

QByteArray WriteDirectory(std::vector<ArchiveEntry> entries)
{
    // Readers compare names without regard to case, and search the chunks by halves.
    std::ranges::sort(entries, {}, [](const ArchiveEntry &entry) { return entry.path.toLower(); });
    const std::vector<Listing> listings = FillListings(entries);
    QByteArray chunks = WriteListings(listings);
    if (listings.size() > 1)
        chunks += WriteIndex(listings);
    return WriteHeader(qint32(listings.size()), qint32(chunks.size() / chunkSize)) + chunks;
}

} // namespace vellumo
