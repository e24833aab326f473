#include "readback/text_resources.h"

#include "readback/byte_reader.h"

namespace vellumo {

Result<QByteArray> ReadTextResource(const QByteArray &resource, Padding padding)
{
    ByteReader reader(resource);
    const QByteArray text = reader.TakeText();
    if (padding == Padding::ToEven)
        reader.PassPadding();
    reader.PassEnd();
    if (reader.Failed())
        return Error{reader.Fault()};
    return text;
}

Result<StringTable> ReadStringTable(const QByteArray &resource)
{
    ByteReader reader(resource);
    StringTable table;
    table.prefix = reader.TakeText();
    const quint32 count = reader.TakeNumber(2);
    for (quint32 i = 0; i < count && !reader.Failed(); ++i)
        table.entries.append(reader.TakeText());
    reader.PassEnd();
    if (reader.Failed())
        return Error{reader.Fault()};
    return table;
}

} // namespace vellumo
