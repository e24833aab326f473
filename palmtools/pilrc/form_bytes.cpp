#include "palmtools/pilrc/form_bytes.h"

#include "palmtools/common/record.h"
#include "palmtools/pilrc/object_bytes.h"
#include "palmtools/pilrc/resource_list.h"

namespace palmtools {
namespace {

// The layout is that of docs/palm-formats.md, "Forms".

constexpr std::size_t windowFlagsAt = 8;
constexpr std::size_t placeAt = 10;
constexpr std::size_t frameAt = 30;
constexpr std::size_t numberAt = 40;
constexpr std::size_t flagsAt = 42;
constexpr std::size_t objectCountAt = 62;
constexpr std::size_t headerSize = 68;

constexpr std::size_t entryKindAt = 0;
constexpr std::size_t entryOffsetAt = 2;
constexpr std::size_t entrySize = 6;

constexpr int focusableDialog = 0x1200;
constexpr int formUsable = 0x8000;
constexpr int formSaveBehind = 0x0800;

void AppendHeader(Bytes &bytes, const FormHeader &header, std::size_t objects)
{
    Record record(bytes, headerSize);
    record.Put16(windowFlagsAt, focusableDialog);
    PutRectangle(record, placeAt, header.place);
    record.Put16(frameAt, header.frame ? 1 : 0);
    record.Put16(numberAt, header.number);
    record.Put16(flagsAt,
                 (header.usable ? formUsable : 0) | (header.saveBehind ? formSaveBehind : 0));
    record.Put16(objectCountAt, static_cast<std::int64_t>(objects));
}

} // namespace

void FormBytes::Add(const FormObject &object)
{
    const std::uint64_t size = ObjectSize(object);
    ++m_objectCount;
    m_objectsSize += size;
    if (Size() > largestResource)
        return;
    m_directory.push_back({DirectoryKind(object.kind), m_objects.size()});
    AppendObject(m_objects, object);
}

std::uint64_t FormBytes::Size() const
{
    return headerSize + entrySize * m_objectCount + m_objectsSize;
}

Bytes FormBytes::Build(const FormHeader &header) const
{
    Bytes bytes;
    bytes.reserve(Size());
    AppendHeader(bytes, header, m_directory.size());
    const std::size_t firstObject = headerSize + entrySize * m_directory.size();
    for (const Entry &object : m_directory) {
        Record entry(bytes, entrySize);
        entry.Put8(entryKindAt, object.kind);
        entry.Put32(entryOffsetAt, static_cast<std::int64_t>(firstObject + object.offset));
    }
    bytes += m_objects;
    return bytes;
}

} // namespace palmtools
