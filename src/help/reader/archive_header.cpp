#include "help/reader/archive_header.h"

#include "help/archive_format.h"
#include "help/reader/file_bytes.h"

#include <QIODevice>

namespace vellumo {

using namespace archive;

namespace {

constexpr quint32 smallestChunk = 64;
constexpr quint32 largestChunk = 0x10000;
constexpr quint64 largestDirectory = 64 << 20;

/// Places in the file.
struct Places {
    quint64 directoryStart = 0;
    quint64 directoryLength = 0;
    quint64 contentStart = 0;
};

std::optional<Places> ReadPlaces(QIODevice &file, quint64 fileSize)
{
    const auto bytes = BytesAt(file, 0, header::size);
    if (!bytes || !bytes->startsWith(header::tag))
        return std::nullopt;
    const auto version = Get(*bytes, header::version);
    Places places{Get(*bytes, header::directoryStart), Get(*bytes, header::directoryLength), 0};
    if ((version != 2 && version != 3) || places.directoryLength < quint64(directory::size) ||
        places.directoryLength > largestDirectory || places.directoryStart > fileSize ||
        places.directoryLength > fileSize - places.directoryStart)
        return std::nullopt;
    places.contentStart = version == 2 ? places.directoryStart + places.directoryLength
                                       : Get(*bytes, header::contentStart);
    return places.contentStart <= fileSize ? std::optional(places) : std::nullopt;
}

} // namespace

std::optional<ArchiveHeader> ReadArchiveHeader(QIODevice &file)
{
    const auto fileSize = quint64(file.size());
    const auto places = ReadPlaces(file, fileSize);
    const auto bytes = places ? BytesAt(file, places->directoryStart, directory::size)
                              : std::optional<QByteArray>();
    if (!bytes || !bytes->startsWith(directory::tag))
        return std::nullopt;

    const auto chunkSize = Get(*bytes, directory::chunkSize);
    if (Get(*bytes, directory::length) != quint32(directory::size) || chunkSize < smallestChunk ||
        chunkSize > largestChunk)
        return std::nullopt;
    const qint32 root = Get(*bytes, directory::root);
    return ArchiveHeader{
        .contentStart = places->contentStart,
        .contentLength = fileSize - places->contentStart,
        .chunksStart = places->directoryStart + quint64(directory::size),
        .chunkCount = (places->directoryLength - quint64(directory::size)) / chunkSize,
        .chunkSize = chunkSize,
        .rootChunk = root < 0 ? Get(*bytes, directory::firstListing) : root,
    };
}

} // namespace vellumo
