#include "readback/soundness_check.h"

#include "readback/form_reader.h"
#include "readback/navigation_reader.h"
#include "readback/shown_text.h"
#include "readback/text_resources.h"

#include <QtEndian>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The finding of a resource that cannot be decoded, if it is of a type that can.
template <typename T>
void KeepFault(const Result<T> &read, const PalmResource &resource, QList<Finding> &findings)
{
    if (!read)
        findings.append(
            {"resource-damaged"_L1,
             {"resources"_L1},
             u"The resource %1 is damaged: %2"_s.arg(Describe(resource), read.error().text)});
}

void CheckResource(const PalmResource &resource, QList<Finding> &findings)
{
    if (resource.type == "tFRM")
        KeepFault(ReadForm(resource.data), resource, findings);
    else if (resource.type == "fnav")
        KeepFault(ReadNavigation(resource.data), resource, findings);
    else if (resource.type == "tSTL")
        KeepFault(ReadStringTable(resource.data), resource, findings);
    else if (resource.type == "tver" || resource.type == "desc" || resource.type == "sdir" ||
             resource.type == "guid")
        KeepFault(ReadTextResource(resource.data), resource, findings);
    else if (resource.type == "tAIN")
        KeepFault(ReadTextResource(resource.data, Padding::ToEven), resource, findings);
}

/// One number for each place from which the count of questions can be told.
struct Count {
    QLatin1StringView what;
    qsizetype number;
};

qsizetype SizeOf(const PalmDatabase &database, QByteArrayView type, quint32 number)
{
    const PalmResource *resource = database.Find(type, number);
    return resource ? resource->data.size() : 0;
}

qsizetype ResourcesOf(const PalmDatabase &database, QByteArrayView type)
{
    return std::ranges::count_if(
        database.resources, [type](const PalmResource &resource) { return resource.type == type; });
}

qsizetype ColumnNames(const PalmDatabase &database)
{
    const PalmResource *names = database.Find("tSTL", 1004);
    const Result<StringTable> table = ReadStringTable(names ? names->data : QByteArray());
    return table ? table->entries.size() : 0;
}

void CheckCounts(const PalmDatabase &database, QList<Finding> &findings)
{
    const PalmResource *count = database.Find("flds", 1000);
    if (!count || count->data.size() != 2) {
        findings.append({"question-count"_L1,
                         {"question count"_L1},
                         u"The question count, resource 'flds' 1000, is missing or no count."_s});
        return;
    }
    const qsizetype questions = qFromBigEndian<quint16>(count->data.constData());
    const Count counts[] = {
        {"forms"_L1, ResourcesOf(database, "tFRM")},
        {"navigations"_L1, ResourcesOf(database, "fnav")},
        {"question codes"_L1, SizeOf(database, "ques", 1002)},
        {"data codes"_L1, SizeOf(database, "fldt", 1001)},
        {"column names"_L1, ColumnNames(database)},
    };
    for (const auto &[what, number] : counts) {
        if (number != questions)
            findings.append({"question-count"_L1,
                             {"question count"_L1},
                             u"The question count is %1, and there are %2 %3."_s.arg(
                                 QString::number(questions), QString::number(number), what)});
    }
}

void CheckKind(QByteArrayView found, QByteArrayView expected, QLatin1StringView code,
               QLatin1StringView field, QList<Finding> &findings)
{
    if (found != expected)
        findings.append(
            {code, {field}, u"The %1 is %2."_s.arg(field, ShownDifference(found, expected))});
}

} // namespace

QList<Finding> CheckSoundness(const PalmDatabase &database)
{
    QList<Finding> findings;
    CheckKind(database.type, "kelp", "database-type"_L1, "database type"_L1, findings);
    CheckKind(database.creator, "Wmpt", "database-creator"_L1, "database creator"_L1, findings);
    CheckCounts(database, findings);
    for (const PalmResource &resource : database.resources)
        CheckResource(resource, findings);
    return findings;
}

} // namespace vellumo
