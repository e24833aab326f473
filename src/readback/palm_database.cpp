#include "readback/palm_database.h"

#include "readback/byte_reader.h"
#include "readback/shown_text.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

// docs/palm-formats.md, "One layout for both files".
constexpr qsizetype nameSize = 32;
constexpr qsizetype typeSize = 4;          // of database, creator and resources
constexpr qsizetype noInformationSize = 8; // application's and sorting information
constexpr qsizetype noListSize = 4;        // next list of entries
constexpr qsizetype gapSize = 2;
constexpr qsizetype largestResource = 65535;

QByteArray TakeName(ByteReader &reader)
{
    const QByteArrayView field = reader.Take(nameSize);
    const qsizetype length = field.indexOf('\0');
    if (length < 0)
        reader.Refuse(u"its name has no end"_s);
    else if (std::ranges::any_of(field.sliced(length), [](char byte) { return byte != 0; }))
        reader.Refuse(u"there is something after the end of its name"_s);
    return reader.Failed() ? QByteArray() : field.first(length).toByteArray();
}

void TakeHeader(ByteReader &reader, PalmDatabase &database)
{
    database.name = TakeName(reader);
    database.attributes = reader.TakeNumber(2);
    if ((database.attributes & DatabaseAttribute::resources) == 0)
        reader.Refuse(u"it is not marked as one of resources"_s);
    database.version = reader.TakeNumber(2);
    database.created = reader.TakeNumber(4);
    database.modified = reader.TakeNumber(4);
    database.backedUp = reader.TakeNumber(4);
    database.changes = reader.TakeNumber(4);
    reader.PassZeros(noInformationSize);
    database.type = reader.Take(typeSize).toByteArray();
    database.creator = reader.Take(typeSize).toByteArray();
    database.idSeed = reader.TakeNumber(4);
    reader.PassZeros(noListSize);
}

/// Takes the entries and gives where each one's data begin; the resources have no data yet.
QList<qsizetype> TakeEntries(ByteReader &reader, PalmDatabase &database)
{
    QList<qsizetype> offsets;
    const quint32 count = reader.TakeNumber(2);
    for (quint32 i = 0; i < count && !reader.Failed(); ++i) {
        PalmResource resource{reader.Take(typeSize).toByteArray()};
        resource.number = reader.TakeNumber(2);
        offsets.append(reader.TakeNumber(4));
        database.resources.append(resource);
    }
    reader.PassZeros(gapSize);
    return offsets;
}

/// Resources are ordered by the bytes of their type as unsigned values, then by number.
auto Rank(const PalmResource &resource)
{
    return std::pair(QByteArrayView(resource.type), resource.number);
}

/// Puts the resources in their order and notes in what they stood in another one.
void Arrange(ByteReader &reader, PalmDatabase &database)
{
    QList<PalmResource> &resources = database.resources;
    const auto late = std::ranges::adjacent_find(resources, std::ranges::greater(), Rank);
    if (late != resources.end()) {
        database.disorder =
            u"%1 stands after %2"_s.arg(Describe(late[1].Key()), Describe(late[0].Key()));
        std::ranges::sort(resources, {}, Rank);
    }
    const auto twice = std::ranges::adjacent_find(resources, {}, Rank);
    if (twice != resources.end())
        reader.Refuse(u"resource %1 is there twice"_s.arg(Describe(twice->Key())));
}

/// Each resource reaches from its own offset to that of the next one: sizes are not stored. As
/// there are no gaps either, each offset is known before it is read.
void SliceData(ByteReader &reader, PalmDatabase &database, const QList<qsizetype> &offsets)
{
    for (qsizetype i = 0; i < offsets.size() && !reader.Failed(); ++i) {
        PalmResource &resource = database.resources[i];
        const qsizetype end = i + 1 < offsets.size() ? offsets[i + 1] : database.size;
        if (offsets[i] != reader.Offset() || end < offsets[i] || end > database.size)
            reader.Refuse(u"resource %1 cannot reach from byte %2 to byte %3"_s.arg(
                Describe(resource.Key()), QString::number(offsets[i]), QString::number(end)));
        else if (end - offsets[i] > largestResource)
            reader.Refuse(u"resource %1 has %2 bytes, more than %3"_s.arg(
                Describe(resource.Key()), QString::number(end - offsets[i]),
                QString::number(largestResource)));
        else
            resource.data = reader.Take(end - offsets[i]).toByteArray();
    }
}

} // namespace

QString Describe(const ResourceKey &key)
{
    return u"%1 %2"_s.arg(Shown(key.type), QString::number(key.number));
}

Result<PalmDatabase> ReadDatabase(const QByteArray &bytes)
{
    ByteReader reader(bytes);
    PalmDatabase database;
    database.size = bytes.size();
    TakeHeader(reader, database);
    const QList<qsizetype> offsets = TakeEntries(reader, database);
    SliceData(reader, database, offsets);
    Arrange(reader, database);
    reader.PassEnd();
    if (reader.Failed())
        return Error{u"This is no sound Palm database: %1."_s.arg(reader.Fault())};
    return database;
}

} // namespace vellumo
