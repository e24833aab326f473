#include "editing/property_rules.h"

#include "editing/question_rules.h"
#include "model/clsDataSource.h"
#include "model/question_types.h"
#include "model/texts.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// A rule as the one box of the dialog tells of it.
struct Row {
    QLatin1StringView (*objection)(const Question &question, const clsDataSource &source);
    QLatin1StringView after; ///< some messages end their line and some do not: the next runs on
};

template <QuestionRule rule>
QLatin1StringView Alone(const Question &question, const clsDataSource &)
{
    return rule(question);
}

/// The dialog has one sentence for both texts.
QLatin1StringView WithQuotes(const Question &question, const clsDataSource &)
{
    const bool quotes = (question.title + question.columnName).contains(u'"');
    return quotes ? "Double quotes are not allowed in Title and Column Name."_L1 : ""_L1;
}

QLatin1StringView ColumnNameTaken(const Question &question, const clsDataSource &source)
{
    return source.ColumnNameUsedElsewhere(question.columnName) ? columnNameExists : ""_L1;
}

constexpr Row rows[] = {
    {Alone<TitleTooLong>, "\n"_L1},
    {Alone<TextMissing>, "\n"_L1},
    {Alone<TextWithLineBreaks>, "\n"_L1},
    {Alone<TextTooLong>, "\n"_L1},
    {Alone<ColumnNameMissing>, "\n"_L1},
    {Alone<ColumnNameTooLong>, "\n"_L1},
    {WithQuotes, ""_L1},
    {ColumnNameTaken, "\n"_L1},
    {Alone<ItemsMissing>, ""_L1},
    {Alone<ItemsTooMany>, ""_L1},
};

} // namespace

void TrimEdited(Question &edited)
{
    edited.title = TrimBlanks(edited.title).toString();
    edited.question = TrimBlanks(edited.question).toString();
}

QString ObjectionsTo(const Question &edited, const clsDataSource &source)
{
    QString objections;
    for (const Row &row : rows) {
        const QLatin1StringView objection = row.objection(edited, source);
        if (!objection.isEmpty())
            objections.append(objection).append(row.after);
    }
    return objections;
}

void ReplaceCurrentQuestion(clsDataSource &source, const Question &edited)
{
    QuestionRow &row = source.Questions().Current();
    row.Title = edited.title;
    row.Question = edited.question;
    row.Type = edited.type;
    row.ColumnName = edited.columnName;
    source.ReplaceItems(row.Id, HasItems(edited.type) ? edited.items : QStringList());
}

} // namespace vellumo
