#include "editing/wizard_rules.h"

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

struct Check {
    bool (*fails)(const NewQuestion &entered);
    QLatin1StringView message;
};

bool HasLineBreak(const NewQuestion &entered)
{
    return entered.question.contains(u'\r') || entered.question.contains(u'\n');
}

bool HasNoQuestion(const NewQuestion &entered)
{
    return entered.question.isEmpty();
}

bool HasLongQuestion(const NewQuestion &entered)
{
    return entered.question.size() > 255;
}

constexpr auto doubleQuotes = "Double quotes are not allowed."_L1;
constexpr auto lineBreaks = "Carriage returns are not allowed in a question."_L1;
constexpr auto columnExists = "The column name already exists. Please enter a different name."_L1;
constexpr auto longQuestion = "Please keep the question length to 255 characters or less."_L1;

constexpr Check typeChecks[] = {
    {[](const NewQuestion &entered) { return entered.type.isEmpty(); },
     "Please select an item."_L1},
};

constexpr Check titleChecks[] = {
    {[](const NewQuestion &entered) { return entered.title.size() > 20; },
     "Please keep the title length to 20 characters or less."_L1},
    {[](const NewQuestion &entered) { return entered.title.contains(u'"'); }, doubleQuotes},
};

constexpr Check columnChecks[] = {
    {[](const NewQuestion &entered) { return entered.columnName.isEmpty(); },
     "Please enter a column name."_L1},
    {[](const NewQuestion &entered) { return entered.columnName.size() > 255; },
     "Please keep the column name length to 255 characters or less."_L1},
    {[](const NewQuestion &entered) { return entered.columnName.contains(u'"'); }, doubleQuotes},
};

constexpr Check questionChecksOfNext[] = {
    {HasLineBreak, lineBreaks},
    {HasNoQuestion, "Please enter a question."_L1},
    {HasLongQuestion, longQuestion},
};

constexpr Check questionChecksOfFinish[] = {
    {HasLineBreak, lineBreaks},
    {HasNoQuestion, "Please enter a question"_L1},
    {HasLongQuestion, longQuestion},
};

constexpr Check itemChecks[] = {
    {[](const NewQuestion &entered) { return entered.items.isEmpty(); },
     "Please enter at least one item"_L1},
    {[](const NewQuestion &entered) {
         return entered.type == "Pulldown List"_L1 && entered.items.size() > 255;
     },
     "Please keep the list to 255 items or less."_L1},
    {[](const NewQuestion &entered) {
         return entered.type == "Checkboxes"_L1 && entered.items.size() > 32;
     },
     "Please keep the Check Box to 32 items or less."_L1},
};

constexpr std::span<const Check> nextChecks[] = {typeChecks, titleChecks, columnChecks,
                                                 questionChecksOfNext};

QString FirstObjection(std::span<const Check> checks, const NewQuestion &entered)
{
    for (const Check &check : checks)
        if (check.fails(entered))
            return check.message;
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

QString ObjectionToNext(int step, NewQuestion &entered, const clsDataSource &source)
{
    Q_ASSERT(step >= 1 && step <= 4);
    if (step == 3)
        Trim(entered.columnName);
    if (step == 4)
        Trim(entered.question);
    const QString objection = FirstObjection(nextChecks[step - 1], entered);
    if (step == 3 && objection.isEmpty() && source.ColumnNameExists(entered.columnName))
        return columnExists;
    return objection;
}

QString ObjectionToFinish(int step, NewQuestion &entered)
{
    Q_ASSERT(step == 4 || step == 5);
    if (step == 5)
        return FirstObjection(itemChecks, entered);
    Trim(entered.question);
    return FirstObjection(questionChecksOfFinish, entered);
}

QString ProposedColumnName(const clsDataSource &source)
{
    return "Question_"_L1 + QString::number(source.QuestionCount() + 1);
}

void AppendQuestion(clsDataSource &source, const NewQuestion &question)
{
    source.AddQuestion();
    QuestionRow &row = source.Questions().Current();
    row = {.Order = source.QuestionCount(),
           .Title = question.title,
           .Question = question.question,
           .Type = question.type,
           .ColumnName = question.columnName,
           .Id = source.IssueId()};
    if (!HasItems(row.Type))
        return;
    for (const QString &item : question.items)
        source.Items().Append({row.Id, item});
}

} // namespace vellumo
