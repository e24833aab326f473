#include "editing/copied_questions.h"

#include "model/question_types.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr qsizetype mostBytes = 16LL * 1024 * 1024;
constexpr int version = 1;

constexpr auto versionKey = "version"_L1;
constexpr auto questionsKey = "questions"_L1;
constexpr auto itemsKey = "items"_L1;

struct TextKey {
    QLatin1StringView key;
    QString Question::*text;
};
constexpr TextKey textKeys[] = {{"title"_L1, &Question::title},
                                {"question"_L1, &Question::question},
                                {"type"_L1, &Question::type},
                                {"columnName"_L1, &Question::columnName}};

std::optional<Question> QuestionOf(const QJsonObject &object)
{
    Question question;
    for (const TextKey &key : textKeys) {
        if (!object[key.key].isString())
            return {};
        question.*key.text = object[key.key].toString();
    }
    const QJsonArray items = object[itemsKey].toArray();
    const bool areTexts = std::all_of(items.begin(), items.end(),
                                      [](const QJsonValue &item) { return item.isString(); });
    if (!object[itemsKey].isArray() || !areTexts || object.size() != std::ssize(textKeys) + 1)
        return {};
    for (const auto &item : items)
        question.items += item.toString();
    return question;
}

} // namespace

Question CurrentQuestion(const clsDataSource &source)
{
    const QuestionRow &row = source.Questions().Current();
    return {.title = row.Title,
            .question = row.Question,
            .type = row.Type,
            .columnName = row.ColumnName,
            .items = HasItems(row.Type) ? source.ItemsOf(row.Id) : QStringList()};
}

QByteArray WriteQuestions(const QList<Question> &questions)
{
    QJsonArray list;
    for (const Question &question : questions) {
        QJsonObject object;
        for (const TextKey &key : textKeys)
            object[key.key] = question.*key.text;
        object[itemsKey] = QJsonArray::fromStringList(question.items);
        list += object;
    }
    return QJsonDocument(QJsonObject{{versionKey, version}, {questionsKey, list}})
        .toJson(QJsonDocument::Compact);
}

std::optional<QList<CopiedQuestion>> ReadQuestions(const QByteArray &bytes)
{
    if (bytes.size() > mostBytes)
        return {};
    const QJsonObject whole = QJsonDocument::fromJson(bytes).object();
    const QJsonArray list = whole[questionsKey].toArray();
    if (whole.size() != 2 || whole[versionKey] != QJsonValue(version) || list.isEmpty())
        return {};
    QList<CopiedQuestion> questions;
    for (const auto &value : list) {
        const std::optional<Question> question = QuestionOf(value.toObject());
        if (!question)
            return {};
        questions += {.row = questions.size() + 1, .question = *question};
    }
    return questions;
}

} // namespace vellumo
