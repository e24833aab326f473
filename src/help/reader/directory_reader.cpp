#include "help/reader/directory_reader.h"

#include "help/archive_format.h"
#include "help/reader/chunk_entries.h"
#include "help/reader/compression_format.h"
#include "help/reader/file_bytes.h"

#include <algorithm>
#include <vector>

namespace vellumo {

using namespace archive;

namespace {

constexpr int deepestLevel = 8;            // chunks are walked by recursion
constexpr qsizetype mostObjects = 1 << 18; // all of them are kept

/// Whether the library that decompresses looks for this object on its own.
bool SteersDecompression(QByteArrayView name)
{
    return name.compare(controlDataName, Qt::CaseInsensitive) == 0 ||
           name.compare(resetTableName, Qt::CaseInsensitive) == 0;
}

/// Walks through the chunks, from one of them down, and gathers the objects.
class DirectoryReader
{
public:
    DirectoryReader(QIODevice &file, const ArchiveHeader &header)
        : m_file(file), m_header(header), m_seen(header.chunkCount)
    {}

    bool ReadChunk(qint64 number, int depth)
    {
        if (number < 0 || quint64(number) >= m_header.chunkCount || m_seen[std::size_t(number)] ||
            depth > deepestLevel)
            return false;
        m_seen[std::size_t(number)] = true;
        const auto chunk =
            BytesAt(m_file, m_header.chunksStart + quint64(number) * m_header.chunkSize,
                    m_header.chunkSize);
        if (!chunk)
            return false;
        if (chunk->startsWith(listing::tag))
            return ReadListing(*chunk);
        return chunk->startsWith(index::tag) && ReadIndex(*chunk, depth);
    }

    ObjectDirectory TakeObjects() { return std::move(m_objects); }

private:
    bool ReadListing(QByteArrayView chunk)
    {
        auto entries = ChunkEntries::Of(chunk, listing::size);
        while (entries && !entries->AtEnd()) {
            const auto name = entries->Name();
            const auto section = entries->Number(), offset = entries->Number(),
                       length = entries->Number();
            if (!name || !section || !offset || !length ||
                !AddObject(*name, {*section, *offset, *length}))
                return false;
        }
        return entries.has_value();
    }

    bool ReadIndex(QByteArrayView chunk, int depth)
    {
        auto entries = ChunkEntries::Of(chunk, index::size);
        while (entries && !entries->AtEnd()) {
            const auto name = entries->Name();
            const auto below = entries->Number();
            if (!name || !below || !ReadChunk(qint64(*below), depth + 1))
                return false;
        }
        return entries.has_value();
    }

    bool AddObject(QByteArrayView name, const ObjectPlace &place)
    {
        if (place.section != compressedSection &&
            (place.section != storedSection || !IsWithinFile(place)))
            return false;
        // Of what steers the decompression, there must be no second one that the library might use.
        return (m_objects.Add(name, place) || !SteersDecompression(name)) &&
               m_objects.Count() <= mostObjects;
    }

    bool IsWithinFile(const ObjectPlace &place) const
    {
        return place.offset <= m_header.contentLength &&
               place.length <= m_header.contentLength - place.offset;
    }

    QIODevice &m_file;
    const ArchiveHeader &m_header;
    std::vector<bool> m_seen; ///< by the numbers of the chunks
    ObjectDirectory m_objects;
};

} // namespace

std::optional<ObjectDirectory> ReadDirectory(QIODevice &file, const ArchiveHeader &header)
{
    DirectoryReader reader(file, header);
    if (!reader.ReadChunk(header.rootChunk, 1))
        return std::nullopt;
    return reader.TakeObjects();
}

} // namespace vellumo
