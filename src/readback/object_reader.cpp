#include "readback/object_reader.h"

#include "readback/object_layouts.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Every object begins at an even offset, so an odd text has one zero more.
void TakeLastText(ByteReader &reader, FormObject &object)
{
    object.text = reader.TakeText();
    reader.PassPadding();
}

/// Items stand without gaps; only the whole of them is padded.
void TakeItems(ByteReader &reader, ObjectRecord &list)
{
    reader.PassZeros(listEntrySize * qsizetype(list.entries));
    for (quint32 i = 0; i < list.entries && !reader.Failed(); ++i)
        list.items.append(reader.TakeText());
    reader.PassPadding();
}

void TakeCells(ByteReader &reader, ObjectRecord &table)
{
    for (quint32 i = 0; i < table.entries && !reader.Failed(); ++i) {
        TableColumn column;
        tableColumnLayout.Take(reader, column);
        table.columnWidths.append(column.width);
    }
    for (quint32 i = 0; i < table.rows && !reader.Failed(); ++i)
        tableRowLayout.Take(reader, table);
    reader.PassZeros(tableCellSize * qsizetype(table.rows) * qsizetype(table.entries));
}

void TakeRest(ByteReader &reader, ObjectRecord &object)
{
    switch (object.kind) {
    case ObjectKind::Control:
    case ObjectKind::Label:
    case ObjectKind::Title:
        return TakeLastText(reader, object);
    case ObjectKind::List:
        return TakeItems(reader, object);
    case ObjectKind::Table:
        return TakeCells(reader, object);
    case ObjectKind::Field:
    case ObjectKind::PopupList:
    case ObjectKind::GraffitiIndicator:
    case ObjectKind::Gadget:
    case ObjectKind::ScrollBar:
        break; // their record is all
    }
}

} // namespace

FormObject TakeObject(ByteReader &reader, ObjectKind kind)
{
    ObjectRecord object{{.kind = kind}};
    if (const RecordLayout<ObjectRecord> *layout = LayoutOf(kind)) {
        layout->Take(reader, object);
        TakeRest(reader, object);
    } else {
        reader.Refuse(u"there is no kind of object %1"_s.arg(quint32(kind)));
    }
    return object;
}

} // namespace vellumo
