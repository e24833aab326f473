#include "readback/database_check.h"

#include "model/question_types.h"
#include "readback/data_check.h"
#include "readback/question_check.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr QByteArrayView formType = "tFRM";
constexpr QByteArrayView navigationType = "fnav";

void CheckHeader(const PalmDatabase &database, const DeliveredTexts &texts,
                 QList<Finding> &findings)
{
    const struct {
        QLatin1StringView code, field;
        QByteArray found, expected;
    } names[] = {
        {"database-name"_L1, "database name"_L1, database.name, texts.databaseName},
        {"database-type"_L1, "database type"_L1, database.type, "kelp"},
        {"database-creator"_L1, "database creator"_L1, database.creator, "Wmpt"},
    };
    for (const auto &[code, field, found, expected] : names) {
        if (found != expected)
            findings.append(OtherText(code, {field}, found, expected));
    }

    const struct {
        QLatin1StringView code, field;
        quint32 found, expected;
    } numbers[] = {
        {"database-attributes"_L1, "database attributes"_L1, database.attributes, 0x0101},
        {"database-version"_L1, "database version"_L1, database.version, 1},
    };
    for (const auto &[code, field, found, expected] : numbers) {
        if (found != expected)
            findings.append({code,
                             {field},
                             u"The %1: 0x%2 instead of 0x%3."_s.arg(field)
                                 .arg(found, 4, 16, QChar(u'0'))
                                 .arg(expected, 4, 16, QChar(u'0'))});
    }
}

/// The resource's data, or null where it is missing, which is a finding.
const QByteArray *DataOf(const PalmDatabase &database, QByteArrayView type, quint32 number,
                         const TextPlace &place, QList<Finding> &findings)
{
    if (const PalmResource *resource = database.Find(type, number))
        return &resource->data;
    findings.append({"resource-missing"_L1, place,
                     u"%1 is missing: there is no resource %2."_s.arg(
                         Describe(place), Describe(PalmResource{type.toByteArray(), number}))});
    return nullptr;
}

void CheckData(const PalmDatabase &database, const DeliveredTexts &texts, QList<Finding> &findings)
{
    for (const DataResource &resource : DataResources()) {
        const TextPlace place = {resource.field};
        if (const auto *data = DataOf(database, resource.type, resource.number, place, findings))
            resource.check(*data, texts, findings);
    }
}

void CheckQuestions(const PalmDatabase &database, const DeliveredTexts &texts,
                    QList<Finding> &findings)
{
    int number = 0;
    for (const DeliveredQuestion &question : texts.questions) {
        ++number;
        if (!TypeNamed(question.type))
            findings.append(
                {"unknown-type"_L1,
                 {"type"_L1, number},
                 u"The type of question %1 is unknown, so that no form can be right."_s.arg(
                     number)});
        const auto dataOf = [&](QByteArrayView type, QLatin1StringView field) {
            return DataOf(database, type, quint32(number), {field, number}, findings);
        };
        if (const QByteArray *form = dataOf(formType, "form"_L1))
            CheckForm(*form, question, number, findings);
        if (const QByteArray *navigation = dataOf(navigationType, "navigation"_L1))
            CheckNavigation(*navigation, question, number, findings);
    }
}

bool IsExpected(const PalmResource &resource, qsizetype questions)
{
    if (resource.type == formType || resource.type == navigationType)
        return resource.number >= 1 && resource.number <= questions;
    return std::ranges::any_of(DataResources(), [&resource](const DataResource &known) {
        return known.type == resource.type && known.number == resource.number;
    });
}

void CheckForOthers(const PalmDatabase &database, qsizetype questions, QList<Finding> &findings)
{
    for (const PalmResource &resource : database.resources) {
        if (!IsExpected(resource, questions))
            findings.append({"resource-extra"_L1,
                             {"resources"_L1},
                             u"The resource %1 does not belong here."_s.arg(Describe(resource))});
    }
}

} // namespace

QList<Finding> CheckDatabase(const PalmDatabase &database, const Project &project)
{
    QList<Finding> findings;
    const DeliveredTexts texts = DeliverTexts(project, findings);
    CheckHeader(database, texts, findings);
    CheckData(database, texts, findings);
    CheckQuestions(database, texts, findings);
    CheckForOthers(database, texts.questions.size(), findings);
    return findings;
}

} // namespace vellumo
