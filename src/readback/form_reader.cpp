#include "readback/form_reader.h"

#include "readback/object_layouts.h"
#include "readback/object_reader.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The header of a form, which its directory follows.
struct FormRecord : Form {
    quint32 objectCount = 0;
};

constexpr quint32 windowFlags = 0x1200; // a dialog that takes the focus

constexpr StoredNumber<FormRecord> storedFormNumbers[] = {
    {8, 2, nullptr, windowFlags}, {10, 2, &FormRecord::x},      {12, 2, &FormRecord::y},
    {14, 2, &FormRecord::width},  {16, 2, &FormRecord::height}, {30, 2, &FormRecord::frame},
    {40, 2, &FormRecord::number}, {42, 2, &FormRecord::flags},  {62, 2, &FormRecord::objectCount},
};
constexpr RecordLayout<FormRecord> formLayout(68, storedFormNumbers);

struct DirectoryEntry {
    quint32 kind = 0;
    quint32 offset = 0; ///< from the start of the form
};

constexpr StoredNumber<DirectoryEntry> entryNumbers[] = {
    {0, 1, &DirectoryEntry::kind},
    {2, 4, &DirectoryEntry::offset},
};
constexpr RecordLayout<DirectoryEntry> entryLayout(6, entryNumbers);

QList<DirectoryEntry> TakeDirectory(ByteReader &reader, quint32 count)
{
    QList<DirectoryEntry> directory;
    for (quint32 i = 0; i < count && !reader.Failed(); ++i)
        entryLayout.Take(reader, directory.emplaceBack());
    return directory;
}

/// Takes the object of an entry. Objects stand in the order of the directory without gaps, so that
/// each offset is known before it is read.
FormObject TakeObjectOf(const DirectoryEntry &entry, ByteReader &reader)
{
    const auto kind = ObjectKind(entry.kind);
    if (LayoutOf(kind) && entry.offset != reader.Offset())
        reader.Refuse(
            u"its %1 should begin at byte %2, but the directory has %3"_s.arg(NameOf(kind))
                .arg(reader.Offset())
                .arg(entry.offset));
    return TakeObject(reader, kind);
}

} // namespace

Result<Form> ReadForm(const QByteArray &resource)
{
    ByteReader reader(resource);
    FormRecord form;
    formLayout.Take(reader, form);
    for (const DirectoryEntry &entry : TakeDirectory(reader, form.objectCount)) {
        if (reader.Failed())
            break;
        form.objects.append(TakeObjectOf(entry, reader));
    }
    reader.PassEnd();
    if (reader.Failed())
        return Error{reader.Fault()};
    return form;
}

} // namespace vellumo
