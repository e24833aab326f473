#include "editing/wizard_rules.h"

#include "editing/question_rules.h"
#include "model/question_types.h"
#include "model/texts.h"

#include <span>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr StepButtons stepButtons[][2] = {
    // types without items, types with items
    {{false, true, false}, {false, true, false}},
    {{true, true, false}, {true, true, false}},
    {{true, true, false}, {true, true, false}},
    {{std::nullopt, false, true}, {std::nullopt, true, false}},
    {{true, false, true}, {true, false, true}},
};

// Where a question is finished, two sentences lack their full stop.
QLatin1StringView TextMissingAtFinish(const Question &question)
{
    return TextMissing(question).isEmpty() ? ""_L1 : "Please enter a question"_L1;
}

QLatin1StringView ItemsMissingAtFinish(const Question &question)
{
    return question.items.isEmpty() ? "Please enter at least one item"_L1 : ""_L1;
}

constexpr QuestionRule typeRules[] = {TypeMissing};
constexpr QuestionRule titleRules[] = {TitleTooLong, TitleWithQuotes};
constexpr QuestionRule columnRules[] = {ColumnNameMissing, ColumnNameTooLong, ColumnNameWithQuotes};
constexpr QuestionRule textRules[] = {TextWithLineBreaks, TextMissing, TextTooLong};
constexpr QuestionRule textRulesAtFinish[] = {TextWithLineBreaks, TextMissingAtFinish, TextTooLong};
constexpr QuestionRule itemRulesAtFinish[] = {ItemsMissingAtFinish, ItemsTooMany};

/// Of the steps 1 to 4.
constexpr std::span<const QuestionRule> rulesOfNext[] = {typeRules, titleRules, columnRules,
                                                         textRules};

QString FirstObjection(std::span<const QuestionRule> rules, const Question &entered)
{
    for (const QuestionRule rule : rules)
        if (const QLatin1StringView objection = rule(entered); !objection.isEmpty())
            return objection;
    return {};
}

void Trim(QString &text)
{
    text = TrimBlanks(text).toString();
}

} // namespace

StepButtons ButtonsOf(int step, QStringView type)
{
    Q_ASSERT(step >= 1 && step <= 5);
    return stepButtons[step - 1][HasItems(type) ? 1 : 0];
}

QString ObjectionToNext(int step, Question &entered, const clsDataSource &source)
{
    Q_ASSERT(step >= 1 && step <= 4);
    if (step == 3)
        Trim(entered.columnName);
    if (step == 4)
        Trim(entered.question);
    QString objection = FirstObjection(rulesOfNext[step - 1], entered);
    if (step == 3 && objection.isEmpty() && source.ColumnNameExists(entered.columnName))
        return columnNameExists;
    return objection;
}

QString ObjectionToFinish(int step, Question &entered)
{
    Q_ASSERT(step == 4 || step == 5);
    if (step == 5)
        return FirstObjection(itemRulesAtFinish, entered);
    Trim(entered.question);
    return FirstObjection(textRulesAtFinish, entered);
}

QString ProposedColumnName(const clsDataSource &source)
{
    return "Question_"_L1 + QString::number(source.QuestionCount() + 1);
}

void AppendQuestion(clsDataSource &source, const Question &question)
{
    source.AddQuestion();
    QuestionRow &row = source.Questions().Current();
    row = {.Order = source.QuestionCount(),
           .Title = question.title,
           .Question = question.question,
           .Type = question.type,
           .ColumnName = question.columnName,
           .Id = source.IssueId()};
    // Appended: a file may bring items under an Id that was never issued, and none of them is lost.
    if (HasItems(row.Type))
        source.AppendItems(row.Id, question.items);
}

} // namespace vellumo
