#include "readback/database_content.h"

#include "readback/byte_reader.h"
#include "readback/form_reader.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

Result<quint32> ReadCount(const QByteArray &resource)
{
    if (resource.size() != 2)
        return Error{u"it has %1 bytes instead of 2"_s.arg(resource.size())};
    return ByteReader(resource).TakeNumber(2);
}

/// Any bytes are codes; which ones are right, only a project can tell.
Result<QByteArray> ReadCodes(const QByteArray &resource)
{
    return resource;
}

Result<QByteArray> ReadText(const QByteArray &resource)
{
    return ReadTextResource(resource, Padding::None);
}

Result<QByteArray> ReadPaddedText(const QByteArray &resource)
{
    return ReadTextResource(resource, Padding::ToEven);
}

/// Decodes resources of a type of which a database has one: that which belongs to it becomes the
/// part.
template <auto read, auto part>
Outcome DecodeSingle(const PalmResource &resource, bool belongs, DatabaseContent &content)
{
    auto decoded = read(resource.data);
    Outcome outcome = decoded ? done : Outcome(decoded.error());
    if (belongs)
        content.*part = std::move(decoded);
    return outcome;
}

/// Decodes resources of a type of which a database has one for each question.
template <auto read, auto parts>
Outcome DecodeNumbered(const PalmResource &resource, bool, DatabaseContent &content)
{
    const auto &decoded =
        (content.*parts).emplace(resource.number, read(resource.data)).first->second;
    return decoded ? done : Outcome(decoded.error());
}

struct ResourceRow {
    ResourceKey key; ///< number 0: one for each question
    Outcome (*decode)(const PalmResource &resource, bool belongs, DatabaseContent &content);
};

using Content = DatabaseContent;
constexpr ResourceRow resourceRows[] = {
    {questionCountKey, DecodeSingle<ReadCount, &Content::questionCount>},
    {valueCodesKey, DecodeSingle<ReadCodes, &Content::valueCodes>},
    {typeCodesKey, DecodeSingle<ReadCodes, &Content::typeCodes>},
    {descriptionKey, DecodeSingle<ReadText, &Content::description>},
    {columnNamesKey, DecodeSingle<ReadStringTable, &Content::columnNames>},
    {folderKey, DecodeSingle<ReadText, &Content::folder>},
    {identifierKey, DecodeSingle<ReadText, &Content::identifier>},
    {formNameKey, DecodeSingle<ReadPaddedText, &Content::formName>},
    {versionKey, DecodeSingle<ReadText, &Content::version>},
    {FormKey(0), DecodeNumbered<ReadForm, &Content::forms>},
    {NavigationKey(0), DecodeNumbered<ReadNavigation, &Content::navigations>},
};

/// Null for a type that no database of ours has.
const ResourceRow *RowOf(QByteArrayView type)
{
    const auto found =
        std::ranges::find(resourceRows, type, [](const ResourceRow &row) { return row.key.type; });
    return found == std::end(resourceRows) ? nullptr : &*found;
}

bool BelongsTo(const ResourceRow &row, quint32 number, qsizetype questions)
{
    if (row.key.number != 0)
        return number == row.key.number;
    return number >= 1 && number <= questions;
}

} // namespace

bool IsResourceOf(const ResourceKey &key, qsizetype questions)
{
    const ResourceRow *row = RowOf(key.type);
    return row && BelongsTo(*row, key.number, questions);
}

DatabaseContent DecodeDatabase(const PalmDatabase &database)
{
    DatabaseContent content;
    for (const PalmResource &resource : database.resources) {
        const ResourceRow *row = RowOf(resource.type);
        if (!row)
            continue;
        const bool belongs = resource.number == row->key.number;
        const Outcome outcome = row->decode(resource, belongs, content);
        if (!outcome)
            content.damages.append({resource.type, resource.number, outcome.error().text});
    }
    return content;
}

} // namespace vellumo
