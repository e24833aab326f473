#include "palmtools/pilrc/object_bytes.h"

#include "palmtools/pilrc/object_layout.h"

namespace palmtools {

std::uint8_t DirectoryKind(ObjectKind kind)
{
    return LayoutOf(kind).directoryKind;
}

std::uint64_t ObjectSize(const FormObject &object)
{
    const ObjectLayout &layout = LayoutOf(object.kind);
    const std::uint64_t size = layout.fixedSize + layout.tail.size(object);
    return size + size % 2;
}

void AppendObject(Bytes &bytes, const FormObject &object)
{
    const ObjectLayout &layout = LayoutOf(object.kind);
    Record record(bytes, layout.fixedSize);
    for (const ObjectPart &part : layout.parts)
        part.put(record, part.offset, object);
    layout.tail.append(bytes, object);
    PadToEven(bytes);
}

} // namespace palmtools
