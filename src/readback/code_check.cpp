#include "readback/code_check.h"

#include "readback/part_check.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// A list of one byte for each question.
struct CodeList {
    ResourceKey key;
    Decoded<QByteArray> DatabaseContent::*codes;
    QLatin1StringView list;  ///< the whole, by its name to a user
    QLatin1StringView field; ///< one of it, likewise
    QLatin1StringView code;
    quint8 DeliveredType::*expected;
};

constexpr CodeList codeLists[] = {
    {valueCodesKey, &DatabaseContent::valueCodes, "list of value kinds"_L1, "value kind"_L1,
     "value-code"_L1, &DeliveredType::valueCode},
    {typeCodesKey, &DatabaseContent::typeCodes, "list of types"_L1, "type"_L1, "type-code"_L1,
     &DeliveredType::typeCode},
};

QString ShownCode(int code)
{
    return u"0x%1"_s.arg(code, 2, 16, QChar(u'0'));
}

void CheckCount(const DatabaseContent &content, qsizetype questions, QList<Finding> &findings)
{
    const TextPlace place = {"question count"_L1};
    CheckPart(content.questionCount, questionCountKey, place, findings, [&](quint32 count) {
        if (count != questions)
            findings.append(
                {"question-count"_L1, place,
                 u"The question count is %1 instead of %2."_s.arg(count).arg(questions)});
    });
}

void CompareCodes(const QByteArray &found, const CodeList &list, const DeliveredTexts &texts,
                  QList<Finding> &findings)
{
    const qsizetype questions = texts.questions.size();
    // A list of another length lacks a question somewhere: every code after it would be another.
    if (found.size() != questions) {
        findings.append(OtherLength("code-count"_L1, {list.list}, found.size(), questions));
        return;
    }
    for (qsizetype i = 0; i < questions; ++i) {
        const int is = static_cast<uchar>(found[i]);
        const int shouldBe = texts.questions[i].type->*list.expected;
        const TextPlace place = {list.field, int(i + 1)};
        if (is != shouldBe)
            findings.append({list.code, place,
                             u"%1 is %2 instead of %3."_s.arg(Describe(place), ShownCode(is),
                                                              ShownCode(shouldBe))});
    }
}

} // namespace

void CheckCodes(const DatabaseContent &content, const DeliveredTexts &texts,
                QList<Finding> &findings)
{
    CheckCount(content, texts.questions.size(), findings);
    for (const CodeList &list : codeLists)
        CheckPart(content.*list.codes, list.key, {list.list}, findings,
                  [&](const QByteArray &codes) { CompareCodes(codes, list, texts, findings); });
}

} // namespace vellumo
