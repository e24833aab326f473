#include "palmtools/common/database.h"

#include <limits>

namespace palmtools {
namespace {

constexpr std::size_t nameSize = 32;
constexpr std::size_t attributesOffset = 32;
constexpr std::size_t countOffset = 76;
constexpr std::size_t headerSize = 78;
constexpr std::size_t entrySize = 10;
constexpr std::size_t gapSize = 2;

constexpr int resourceDatabase = 0x0001;
constexpr int hiddenDatabase = 0x0100;
constexpr int formatVersion = 1;

std::uint64_t EncodedSize(const std::vector<ResourceView> &resources)
{
    std::uint64_t size = headerSize + entrySize * resources.size() + gapSize;
    for (const ResourceView &resource : resources)
        size += resource.bytes.size();
    return size;
}

void AppendHeader(Bytes &bytes, const DatabaseHeader &header, std::size_t count)
{
    AppendField(bytes, std::string_view(header.name).substr(0, nameSize - 1), nameSize);
    AppendBigEndian16(bytes, resourceDatabase | (header.hidden ? hiddenDatabase : 0));
    AppendBigEndian16(bytes, formatVersion);
    AppendBigEndian32(bytes, header.time);
    AppendBigEndian32(bytes, header.time);
    AppendZeros(bytes, 16);
    AppendBigEndian32(bytes, header.type);
    AppendBigEndian32(bytes, header.creator);
    AppendZeros(bytes, 8);
    AppendBigEndian16(bytes, static_cast<std::int64_t>(count));
}

} // namespace

Result<Bytes> EncodeDatabase(const DatabaseHeader &header,
                             const std::vector<ResourceView> &resources)
{
    const std::uint64_t size = EncodedSize(resources);
    if (size > std::numeric_limits<std::uint32_t>::max())
        return Error{"the resources are too large together for one file"};

    Bytes bytes;
    bytes.reserve(size);
    AppendHeader(bytes, header, resources.size());
    std::size_t offset = headerSize + entrySize * resources.size() + gapSize;
    for (const ResourceView &resource : resources) {
        AppendBigEndian32(bytes, resource.type);
        AppendBigEndian16(bytes, resource.number);
        AppendBigEndian32(bytes, static_cast<std::int64_t>(offset));
        offset += resource.bytes.size();
    }
    AppendZeros(bytes, gapSize);
    for (const ResourceView &resource : resources)
        bytes += resource.bytes;
    return bytes;
}

Result<std::vector<ResourceView>> DecodeDatabase(std::string_view bytes)
{
    if (bytes.size() < headerSize)
        return Error{"shorter than the header of a database"};
    if ((BigEndian16At(bytes, attributesOffset) & resourceDatabase) == 0)
        return Error{"no resource database"};
    const std::size_t count = BigEndian16At(bytes, countOffset);
    const std::size_t tableEnd = headerSize + entrySize * count;
    if (bytes.size() < tableEnd)
        return Error{"shorter than its entries"};

    std::vector<ResourceView> resources(count);
    std::size_t end = bytes.size();
    for (std::size_t index = count; index-- > 0;) {
        const std::size_t entry = headerSize + entrySize * index;
        const std::size_t offset = BigEndian32At(bytes, entry + 6);
        const std::string shown = "entry " + std::to_string(index + 1);
        if (offset < tableEnd)
            return Error{shown + " begins inside of the entries"};
        if (offset > bytes.size())
            return Error{shown + " begins beyond the end of the file"};
        if (offset > end)
            return Error{shown + " begins behind the one that follows it"};
        resources[index] = {BigEndian32At(bytes, entry), BigEndian16At(bytes, entry + 4),
                            bytes.substr(offset, end - offset)};
        end = offset;
    }
    return resources;
}

} // namespace palmtools
