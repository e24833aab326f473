#include "palmtools/common/database.h"

#include "palmtools/common/files.h"
#include "palmtools/common/record.h"

namespace palmtools {
namespace {

// The layout is that of docs/palm-formats.md, "One layout for both files".

constexpr std::size_t nameAt = 0;
constexpr std::size_t attributesAt = 32;
constexpr std::size_t versionAt = 34;
constexpr std::size_t creationTimeAt = 36;
constexpr std::size_t changeTimeAt = 40;
constexpr std::size_t typeAt = 60;
constexpr std::size_t creatorAt = 64;
constexpr std::size_t countAt = 76;
constexpr std::size_t headerSize = 78;

constexpr std::size_t entryTypeAt = 0;
constexpr std::size_t entryNumberAt = 4;
constexpr std::size_t entryOffsetAt = 6;
constexpr std::size_t entrySize = 10;

constexpr std::size_t gapSize = 2; ///< between the entries and the resources
constexpr std::size_t longestName = 31;

constexpr int resourceDatabase = 0x0001;
constexpr int hiddenDatabase = 0x0100;
constexpr int formatVersion = 1;

/// Where an entry begins; that of the count is where the entries end.
constexpr std::size_t EntryAt(std::size_t index)
{
    return headerSize + entrySize * index;
}

std::uint64_t EncodedSize(const std::vector<ResourceView> &resources)
{
    std::uint64_t size = EntryAt(resources.size()) + gapSize;
    for (const ResourceView &resource : resources)
        size += resource.bytes.size();
    return size;
}

void AppendHeader(Bytes &bytes, const DatabaseHeader &header, std::size_t count)
{
    Record record(bytes, headerSize);
    record.PutText(nameAt, std::string_view(header.name).substr(0, longestName));
    record.Put16(attributesAt, resourceDatabase | (header.hidden ? hiddenDatabase : 0));
    record.Put16(versionAt, formatVersion);
    record.Put32(creationTimeAt, header.time);
    record.Put32(changeTimeAt, header.time);
    record.Put32(typeAt, header.type);
    record.Put32(creatorAt, header.creator);
    record.Put16(countAt, static_cast<std::int64_t>(count));
}

void AppendEntries(Bytes &bytes, const std::vector<ResourceView> &resources)
{
    std::size_t offset = EntryAt(resources.size()) + gapSize;
    for (const ResourceView &resource : resources) {
        Record entry(bytes, entrySize);
        entry.Put32(entryTypeAt, resource.type);
        entry.Put16(entryNumberAt, resource.number);
        entry.Put32(entryOffsetAt, static_cast<std::int64_t>(offset));
        offset += resource.bytes.size();
    }
}

/// What is wrong with where a resource begins, or nothing.
const char *FaultOf(std::size_t begin, std::size_t tableEnd, std::size_t fileEnd, std::size_t next)
{
    if (begin < tableEnd)
        return "begins inside of the entries";
    if (begin > fileEnd)
        return "begins beyond the end of the file";
    if (begin > next)
        return "begins behind the one that follows it";
    return nullptr;
}

} // namespace

Result<Bytes> EncodeDatabase(const DatabaseHeader &header,
                             const std::vector<ResourceView> &resources)
{
    const std::uint64_t size = EncodedSize(resources);
    if (size > largestFile)
        return Error{"the resources are too large together for one file"};

    Bytes bytes;
    bytes.reserve(size);
    AppendHeader(bytes, header, resources.size());
    AppendEntries(bytes, resources);
    AppendZeros(bytes, gapSize);
    for (const ResourceView &resource : resources)
        bytes += resource.bytes;
    return bytes;
}

Result<std::vector<ResourceView>> DecodeDatabase(std::string_view bytes)
{
    if (bytes.size() < headerSize)
        return Error{"shorter than the header of a database"};
    if ((BigEndian16At(bytes, attributesAt) & resourceDatabase) == 0)
        return Error{"no resource database"};
    const std::size_t count = BigEndian16At(bytes, countAt);
    if (bytes.size() < EntryAt(count))
        return Error{"shorter than its entries"};

    // Sizes are not stored: a resource ends where the next one begins, so the last is read first.
    std::vector<ResourceView> resources(count);
    std::size_t end = bytes.size();
    for (std::size_t index = count; index-- > 0;) {
        const std::string_view entry = bytes.substr(EntryAt(index), entrySize);
        const std::size_t begin = BigEndian32At(entry, entryOffsetAt);
        if (const char *fault = FaultOf(begin, EntryAt(count), bytes.size(), end))
            return Error{"entry " + std::to_string(index + 1) + " " + fault};
        resources[index] = {BigEndian32At(entry, entryTypeAt), BigEndian16At(entry, entryNumberAt),
                            bytes.substr(begin, end - begin)};
        end = begin;
    }
    return resources;
}

} // namespace palmtools
