#include "readback/text_check.h"

#include "readback/part_check.h"
#include "readback/shown_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

void CompareText(const TextPlace &place, QLatin1StringView code, const QByteArray &found,
                 const QByteArray &expected, QList<Finding> &findings)
{
    if (found != expected)
        findings.append(OtherText(code, place, found, expected));
}

/// A resource of one text.
struct SingleText {
    ResourceKey key;
    Decoded<QByteArray> DatabaseContent::*found;
    QByteArray DeliveredTexts::*expected;
    QLatin1StringView field;
    QLatin1StringView code;
};

constexpr QLatin1StringView identifierField = "identifier"_L1;

constexpr SingleText description = {descriptionKey, &DatabaseContent::description,
                                    &DeliveredTexts::description, "description"_L1,
                                    "description"_L1};
constexpr SingleText folder = {folderKey, &DatabaseContent::folder, &DeliveredTexts::folder,
                               "data folder"_L1, "data-folder"_L1};
constexpr SingleText formName = {formNameKey, &DatabaseContent::formName, &DeliveredTexts::formName,
                                 "form name"_L1, "form-name"_L1};
constexpr SingleText version = {versionKey, &DatabaseContent::version, &DeliveredTexts::version,
                                "form version"_L1, "form-version"_L1};

void CheckSingleText(const DatabaseContent &content, const SingleText &text,
                     const DeliveredTexts &texts, QList<Finding> &findings)
{
    const TextPlace place = {text.field};
    CheckPart(content.*text.found, text.key, place, findings, [&](const QByteArray &found) {
        CompareText(place, text.code, found, texts.*text.expected, findings);
    });
}

void CompareColumnNames(const StringTable &found, const DeliveredTexts &texts,
                        const TextPlace &place, QList<Finding> &findings)
{
    // A prefix would stand before every name.
    CompareText({"prefix of all column names"_L1}, "column-prefix"_L1, found.prefix, "", findings);
    const qsizetype questions = texts.questions.size();
    if (found.entries.size() != questions) {
        findings.append(OtherLength("column-count"_L1, place, found.entries.size(), questions));
        return;
    }
    for (qsizetype i = 0; i < questions; ++i)
        CompareText({"column name"_L1, int(i + 1)}, "column-name"_L1, found.entries[i],
                    texts.questions[i].columnName, findings);
}

void CheckColumnNames(const DatabaseContent &content, const DeliveredTexts &texts,
                      QList<Finding> &findings)
{
    const TextPlace place = {"list of column names"_L1};
    CheckPart(content.columnNames, columnNamesKey, place, findings,
              [&](const StringTable &found) { CompareColumnNames(found, texts, place, findings); });
}

bool IsIdentifier(const QByteArray &text)
{
    constexpr qsizetype digits = 32;
    const auto isDigit = [](char byte) {
        return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'F');
    };
    // A project can be built without one; then the text is empty.
    return text.isEmpty() || (text.size() == digits && std::ranges::all_of(text, isDigit));
}

void CheckIdentifier(const DatabaseContent &content, QList<Finding> &findings)
{
    const TextPlace place = {identifierField};
    CheckPart(content.identifier, identifierKey, place, findings, [&](const QByteArray &found) {
        if (!IsIdentifier(found))
            findings.append(
                {"identifier"_L1, place,
                 u"The identifier is %1 instead of 32 hexadecimal digits."_s.arg(Shown(found))});
    });
}

} // namespace

void CheckTexts(const DatabaseContent &content, const DeliveredTexts &texts,
                QList<Finding> &findings)
{
    CheckSingleText(content, description, texts, findings);
    CheckColumnNames(content, texts, findings);
    CheckSingleText(content, folder, texts, findings);
    CheckIdentifier(content, findings);
    CheckSingleText(content, formName, texts, findings);
    CheckSingleText(content, version, texts, findings);
}

void CheckForMissingTexts(const DatabaseContent &content, QList<Finding> &findings)
{
    const auto check = [&](const Decoded<QByteArray> &part, const ResourceKey &key,
                           QLatin1StringView field) {
        if (!part)
            findings.append(MissingResource({field}, Describe(key)));
    };
    for (const SingleText &text : {description, folder})
        check(content.*text.found, text.key, text.field);
    check(content.identifier, identifierKey, identifierField);
    for (const SingleText &text : {formName, version})
        check(content.*text.found, text.key, text.field);
}

} // namespace vellumo
