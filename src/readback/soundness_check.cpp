#include "readback/soundness_check.h"

#include "readback/database_content.h"
#include "readback/header_check.h"
#include "readback/resource_check.h"
#include "readback/text_check.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

qsizetype SizeOf(const Decoded<QByteArray> &codes)
{
    return codes && *codes ? (*codes)->size() : 0;
}

qsizetype SizeOf(const Decoded<StringTable> &table)
{
    return table && *table ? (*table)->entries.size() : 0;
}

/// Six resources tell the number of questions; five are held against the one that is only for it.
void CheckCounts(const DatabaseContent &content, QList<Finding> &findings)
{
    const TextPlace place = {"question count"_L1};
    if (!content.questionCount || !*content.questionCount) {
        findings.append({"question-count"_L1, place,
                         u"The question count, resource 'flds' 1000, is missing or no count."_s});
        return;
    }
    const qsizetype questions = **content.questionCount;
    const struct {
        QLatin1StringView what;
        qsizetype number;
    } counts[] = {
        {"forms"_L1, qsizetype(content.forms.size())},
        {"navigations"_L1, qsizetype(content.navigations.size())},
        {"question codes"_L1, SizeOf(content.typeCodes)},
        {"data codes"_L1, SizeOf(content.valueCodes)},
        {"column names"_L1, SizeOf(content.columnNames)},
    };
    for (const auto &[what, number] : counts) {
        if (number != questions)
            findings.append({"question-count"_L1, place,
                             u"The question count is %1, and there are %2 %3."_s.arg(
                                 QString::number(questions), QString::number(number), what)});
    }
}

void CheckDamages(const DatabaseContent &content, QList<Finding> &findings)
{
    for (const auto &[type, number, damage] : content.damages) {
        // That the question count is none has been found with the counts.
        if (type != questionCountKey.type)
            findings.append({"resource-damaged"_L1,
                             {"resources"_L1},
                             u"The resource %1 is damaged: %2"_s.arg(
                                 Describe(ResourceKey{type, number}), damage)});
    }
}

/// Where the number of questions is not known, a form may have any.
qsizetype MostQuestions(const DatabaseContent &content)
{
    const bool isKnown = content.questionCount && *content.questionCount;
    return isKnown ? qsizetype(**content.questionCount) : std::numeric_limits<qsizetype>::max();
}

} // namespace

QList<Finding> CheckSoundness(const PalmDatabase &database)
{
    QList<Finding> findings;
    const DatabaseContent content = DecodeDatabase(database);
    CheckKind(database, findings);
    CheckOrder(database, findings);
    CheckCounts(content, findings);
    CheckForMissingTexts(content, findings);
    CheckDamages(content, findings);
    CheckForOthers(database, MostQuestions(content), findings);
    return findings;
}

} // namespace vellumo
