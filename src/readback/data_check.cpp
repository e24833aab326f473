#include "readback/data_check.h"

#include "model/question_types.h"
#include "readback/shown_text.h"
#include "readback/text_resources.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr QLatin1StringView valueList = "list of value kinds"_L1;
constexpr QLatin1StringView typeList = "list of types"_L1;
constexpr QLatin1StringView columnList = "list of column names"_L1;

void CheckCount(const QByteArray &data, const DeliveredTexts &texts, QList<Finding> &findings)
{
    const TextPlace place = {"question count"_L1};
    if (data.size() != 2) {
        findings.append(DamagedResource(place, u"it has %1 bytes instead of 2"_s.arg(data.size())));
        return;
    }
    const int count = static_cast<uchar>(data[0]) * 256 + static_cast<uchar>(data[1]);
    if (count != texts.questions.size())
        findings.append(
            {"question-count"_L1, place,
             u"The question count is %1 instead of %2."_s.arg(count).arg(texts.questions.size())});
}

/// Whether a list has one entry for each question; a finding where it has not.
bool CheckLength(const TextPlace &place, QLatin1StringView code, qsizetype length,
                 const DeliveredTexts &texts, QList<Finding> &findings)
{
    if (length == texts.questions.size())
        return true;
    findings.append({code, place,
                     u"%1 has %2 entries instead of %3."_s.arg(Describe(place))
                         .arg(length)
                         .arg(texts.questions.size())});
    return false;
}

/// Codes are one byte a question.
struct Codes {
    QLatin1StringView list; ///< all of them, by their name to a user
    QLatin1StringView field;
    QLatin1StringView code;
    QLatin1StringView (*codeOf)(QStringView type);
};

QString ShownCode(int code)
{
    return u"0x%1"_s.arg(code, 2, 16, QChar(u'0'));
}

void CheckCodes(const QByteArray &data, const DeliveredTexts &texts, const Codes &codes,
                QList<Finding> &findings)
{
    if (!CheckLength({codes.list}, "code-count"_L1, data.size(), texts, findings))
        return;
    for (qsizetype i = 0; i < data.size(); ++i) {
        const int is = static_cast<uchar>(data[i]);
        const int shouldBe = QString(codes.codeOf(texts.questions[i].type)).toInt(nullptr, 16);
        const TextPlace place = {codes.field, int(i + 1)};
        if (is != shouldBe)
            findings.append({codes.code, place,
                             u"%1 is %2 instead of %3."_s.arg(Describe(place), ShownCode(is),
                                                              ShownCode(shouldBe))});
    }
}

void CheckValueCodes(const QByteArray &data, const DeliveredTexts &texts, QList<Finding> &findings)
{
    CheckCodes(data, texts, {valueList, "value kind"_L1, "value-code"_L1, FieldDataCode}, findings);
}

void CheckTypeCodes(const QByteArray &data, const DeliveredTexts &texts, QList<Finding> &findings)
{
    CheckCodes(data, texts, {typeList, "type"_L1, "type-code"_L1, QuestionKindCode}, findings);
}

void CompareText(const TextPlace &place, QLatin1StringView code, const QByteArray &found,
                 const QByteArray &expected, QList<Finding> &findings)
{
    if (found != expected)
        findings.append(OtherText(code, place, found, expected));
}

void CheckColumnNames(const QByteArray &data, const DeliveredTexts &texts, QList<Finding> &findings)
{
    const TextPlace place = {columnList};
    const Result<StringTable> table = ReadStringTable(data);
    if (!table) {
        findings.append(DamagedResource(place, table.error().text));
        return;
    }
    CompareText({"prefix of all column names"_L1}, "column-prefix"_L1, table->prefix, "", findings);
    if (!CheckLength(place, "column-count"_L1, table->entries.size(), texts, findings))
        return;
    for (qsizetype i = 0; i < table->entries.size(); ++i)
        CompareText({"column name"_L1, int(i + 1)}, "column-name"_L1, table->entries[i],
                    texts.questions[i].columnName, findings);
}

/// A resource of one text.
struct SingleText {
    QLatin1StringView field;
    QLatin1StringView code;
    QByteArray DeliveredTexts::*expected;
    Padding padding = Padding::None;
};

void CheckText(const QByteArray &data, const DeliveredTexts &texts, const SingleText &text,
               QList<Finding> &findings)
{
    const TextPlace place = {text.field};
    const Result<QByteArray> found = ReadTextResource(data, text.padding);
    if (found)
        CompareText(place, text.code, *found, texts.*text.expected, findings);
    else
        findings.append(DamagedResource(place, found.error().text));
}

template <const SingleText &text>
void CheckSingleText(const QByteArray &data, const DeliveredTexts &texts, QList<Finding> &findings)
{
    CheckText(data, texts, text, findings);
}

constexpr SingleText description = {"description"_L1, "description"_L1,
                                    &DeliveredTexts::description};
constexpr SingleText folder = {"data folder"_L1, "data-folder"_L1, &DeliveredTexts::folder};
constexpr SingleText formName = {"form name"_L1, "form-name"_L1, &DeliveredTexts::formName,
                                 Padding::ToEven};
constexpr SingleText version = {"form version"_L1, "form-version"_L1, &DeliveredTexts::version};

bool IsIdentifier(const QByteArray &text)
{
    const auto isDigit = [](char byte) {
        return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'F');
    };
    return text.isEmpty() || (text.size() == 32 && std::ranges::all_of(text, isDigit));
}

/// The identifier is another in every build; only its shape is known.
void CheckIdentifier(const QByteArray &data, const DeliveredTexts &, QList<Finding> &findings)
{
    const TextPlace place = {"identifier"_L1};
    const Result<QByteArray> found = ReadTextResource(data);
    if (!found)
        findings.append(DamagedResource(place, found.error().text));
    else if (!IsIdentifier(*found))
        findings.append(
            {"identifier"_L1, place,
             u"The identifier is %1 instead of 32 hexadecimal digits."_s.arg(Shown(*found))});
}

constexpr DataResource dataResources[] = {
    {"flds", 1000, "question count"_L1, CheckCount},
    {"fldt", 1001, valueList, CheckValueCodes},
    {"ques", 1002, typeList, CheckTypeCodes},
    {"desc", 1003, "description"_L1, CheckSingleText<description>},
    {"tSTL", 1004, columnList, CheckColumnNames},
    {"sdir", 1005, "data folder"_L1, CheckSingleText<folder>},
    {"guid", 1006, "identifier"_L1, CheckIdentifier},
    {"tAIN", 1000, "form name"_L1, CheckSingleText<formName>},
    {"tver", 1, "form version"_L1, CheckSingleText<version>},
};

} // namespace

std::span<const DataResource> DataResources()
{
    return dataResources;
}

} // namespace vellumo
