#include "readback/form_reader.h"

#include "readback/parts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

using FormPart = Part<Form>;
using ObjectPart = Part<FormObject>;

constexpr quint32 windowFlags = 0x1200;
constexpr quint32 rowHeight = 11;

constexpr FormPart formParts[] = {
    {8},
    {2, nullptr, windowFlags},
    {2, &Form::x},
    {2, &Form::y},
    {2, &Form::width},
    {2, &Form::height},
    {12},
    {2, &Form::frame},
    {8},
    {2, &Form::number},
    {2, &Form::flags},
    {18},
};

constexpr ObjectPart fieldParts[] = {
    {2, &FormObject::number},
    {2, &FormObject::x},
    {2, &FormObject::y},
    {2, &FormObject::width},
    {2, &FormObject::height},
    {2, &FormObject::flags},
    {16},
    {2, &FormObject::maxChars},
    {8},
    {1, &FormObject::font},
    {1},
};
constexpr ObjectPart controlParts[] = {
    {2, &FormObject::number},
    {2, &FormObject::x},
    {2, &FormObject::y},
    {2, &FormObject::width},
    {2, &FormObject::height},
    {4},
    {2, &FormObject::flags},
    {1, &FormObject::style},
    {1, &FormObject::font},
    {1, &FormObject::group},
    {1},
};
constexpr ObjectPart listParts[] = {
    {2, &FormObject::number},
    {2, &FormObject::x},
    {2, &FormObject::y},
    {2, &FormObject::width},
    {2, &FormObject::height},
    {2, &FormObject::flags},
    {4},
};
constexpr ObjectPart listEndParts[] = {{4}, {1, &FormObject::font}, {9}};
constexpr ObjectPart tableParts[] = {
    {2, &FormObject::number}, {2, &FormObject::x},      {2, &FormObject::y},
    {2, &FormObject::width},  {2, &FormObject::height}, {2, &FormObject::flags},
};
constexpr ObjectPart tableEndParts[] = {{2, &FormObject::rows}, {58}};
constexpr ObjectPart tableRowParts[] = {
    {2}, {2, nullptr, rowHeight}, {4}, {1, nullptr, 1}, {1, nullptr, 1}, {2}};
constexpr ObjectPart tableColumnEndParts[] = {{2}, {2, nullptr, 1}, {12}};
constexpr ObjectPart labelParts[] = {
    {2, &FormObject::number}, {2, &FormObject::x},    {2, &FormObject::y},
    {2, &FormObject::flags},  {1, &FormObject::font}, {5},
};
constexpr ObjectPart titleParts[] = {{12}};
constexpr ObjectPart popupListParts[] = {{2, &FormObject::number}, {2, &FormObject::list}};
constexpr ObjectPart indicatorParts[] = {{2, &FormObject::x}, {2, &FormObject::y}};
constexpr ObjectPart gadgetParts[] = {
    {2, &FormObject::number},
    {2, &FormObject::flags},
    {2, &FormObject::x},
    {2, &FormObject::y},
    {2, &FormObject::width},
    {2, &FormObject::height},
    {8},
};
constexpr ObjectPart scrollBarParts[] = {
    {2, &FormObject::x},
    {2, &FormObject::y},
    {2, &FormObject::width},
    {2, &FormObject::height},
    {2, &FormObject::number},
    {1, &FormObject::flags},
    {1},
    {2, &FormObject::value},
    {2, &FormObject::minimum},
    {2, &FormObject::maximum},
    {2, &FormObject::pageSize},
    {4},
};

void Take(ByteReader &reader, std::span<const ObjectPart> parts, FormObject &object)
{
    TakeParts<FormObject>(reader, parts, object);
}

void TakeObjectText(ByteReader &reader, FormObject &object)
{
    object.text = reader.TakeText();
    reader.PassPadding();
}

void TakeItems(ByteReader &reader, FormObject &list)
{
    const quint32 count = reader.TakeNumber(2);
    Take(reader, listEndParts, list);
    reader.PassZeros(4 * qsizetype(count));
    for (quint32 i = 0; i < count && !reader.Failed(); ++i)
        list.items.append(reader.TakeText());
    reader.PassPadding();
}

void TakeCells(ByteReader &reader, FormObject &table)
{
    const quint32 columns = reader.TakeNumber(2);
    Take(reader, tableEndParts, table);
    for (quint32 i = 0; i < columns && !reader.Failed(); ++i) {
        table.columnWidths.append(reader.TakeNumber(2));
        Take(reader, tableColumnEndParts, table);
    }
    for (quint32 i = 0; i < table.rows && !reader.Failed(); ++i)
        Take(reader, tableRowParts, table);
    reader.PassZeros(8 * qsizetype(table.rows) * qsizetype(columns));
}

/// An object begins with its parts; the rest depends on what it holds.
struct KindLayout {
    ObjectKind kind;
    QLatin1StringView name;
    std::span<const ObjectPart> parts;
    void (*takeRest)(ByteReader &reader, FormObject &object) = nullptr;
};

constexpr KindLayout layouts[] = {
    {ObjectKind::Field, "field"_L1, fieldParts},
    {ObjectKind::Control, "control"_L1, controlParts, TakeObjectText},
    {ObjectKind::List, "list"_L1, listParts, TakeItems},
    {ObjectKind::Table, "table"_L1, tableParts, TakeCells},
    {ObjectKind::Label, "label"_L1, labelParts, TakeObjectText},
    {ObjectKind::Title, "title"_L1, titleParts, TakeObjectText},
    {ObjectKind::PopupList, "popup list"_L1, popupListParts},
    {ObjectKind::GraffitiIndicator, "Graffiti indicator"_L1, indicatorParts},
    {ObjectKind::Gadget, "gadget"_L1, gadgetParts},
    {ObjectKind::ScrollBar, "scroll bar"_L1, scrollBarParts},
};

constexpr QLatin1StringView styleNames[] = {"button"_L1, "control"_L1, "check box"_L1,
                                            "popup trigger"_L1, "selector trigger"_L1};

/// Null for a kind that is not known.
const KindLayout *LayoutOf(quint32 kind)
{
    const auto found = std::ranges::find(layouts, ObjectKind(kind), &KindLayout::kind);
    return found == std::end(layouts) ? nullptr : &*found;
}

struct DirectoryEntry {
    quint32 kind;
    quint32 offset;
};

QList<DirectoryEntry> TakeDirectory(ByteReader &reader)
{
    QList<DirectoryEntry> directory;
    const quint32 count = reader.TakeNumber(2);
    reader.PassZeros(4);
    for (quint32 i = 0; i < count && !reader.Failed(); ++i) {
        const quint32 kind = reader.TakeNumber(1);
        reader.PassZeros(1);
        directory.append({kind, reader.TakeNumber(4)});
    }
    return directory;
}

FormObject TakeObject(ByteReader &reader, const DirectoryEntry &entry)
{
    FormObject object{ObjectKind(entry.kind)};
    const KindLayout *layout = LayoutOf(entry.kind);
    if (!layout) {
        reader.Refuse(u"there is no kind of object %1"_s.arg(entry.kind));
        return object;
    }
    if (entry.offset != reader.Offset())
        reader.Refuse(
            u"its %1 should begin at byte %2, but the directory has %3"_s.arg(layout->name)
                .arg(reader.Offset())
                .arg(entry.offset));
    Take(reader, layout->parts, object);
    if (layout->takeRest)
        layout->takeRest(reader, object);
    return object;
}

} // namespace

QString Describe(const FormObject &object)
{
    const KindLayout *layout = LayoutOf(quint32(object.kind));
    QString name = layout ? QString(layout->name) : u"object"_s;
    if (object.kind == ObjectKind::Control && object.style < std::size(styleNames))
        name = styleNames[object.style];
    return object.number == 0 ? name : u"%1 %2"_s.arg(name).arg(object.number);
}

Result<Form> ReadForm(const QByteArray &resource)
{
    ByteReader reader(resource);
    Form form;
    TakeParts<Form>(reader, formParts, form);
    for (const DirectoryEntry &entry : TakeDirectory(reader)) {
        if (reader.Failed())
            break;
        form.objects.append(TakeObject(reader, entry));
    }
    reader.PassEnd();
    if (reader.Failed())
        return Error{reader.Fault()};
    return form;
}

} // namespace vellumo
