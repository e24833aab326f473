#include "palmtools/pilrc/form_bytes.h"

#include "palmtools/pilrc/object_bytes.h"
#include "palmtools/pilrc/resource_list.h"

namespace palmtools {
namespace {

constexpr std::size_t headerSize = 68;
constexpr std::size_t entrySize = 6;
constexpr int focusableDialog = 0x1200;

void AppendHeader(Bytes &bytes, const FormHeader &header, std::size_t objects)
{
    AppendZeros(bytes, 8);
    AppendBigEndian16(bytes, focusableDialog);
    AppendRectangle(bytes, header.place);
    AppendZeros(bytes, 12);
    AppendBigEndian16(bytes, header.frame ? 1 : 0);
    AppendZeros(bytes, 8);
    AppendBigEndian16(bytes, header.number);
    AppendBigEndian16(bytes, (header.usable ? 0x8000 : 0) | (header.saveBehind ? 0x0800 : 0));
    AppendZeros(bytes, 18);
    AppendBigEndian16(bytes, static_cast<std::int64_t>(objects));
    AppendZeros(bytes, 4);
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
    for (const Entry &entry : m_directory) {
        AppendByte(bytes, entry.kind);
        AppendByte(bytes, 0);
        AppendBigEndian32(bytes, static_cast<std::int64_t>(firstObject + entry.offset));
    }
    bytes += m_objects;
    return bytes;
}

} // namespace palmtools
