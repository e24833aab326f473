#include "editing/property_rules.h"

#include "model/clsDataSource.h"
#include "model/question_types.h"
#include "model/texts.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

using Edited = const EditedQuestion &;
using Source = const clsDataSource &;

struct Rule {
    bool (*fails)(Edited edited, Source source);
    QLatin1StringView message;
};

bool HasLineBreak(QStringView text)
{
    return text.contains(u'\r') || text.contains(u'\n');
}

// Some messages end their line and some do not: what follows those runs on.
constexpr Rule rules[] = {
    {[](Edited edited, Source) { return edited.title.size() > 20; },
     "Please keep the title length to 20 characters or less.\n"_L1},
    {[](Edited edited, Source) { return edited.question.isEmpty(); },
     "Please enter a question.\n"_L1},
    {[](Edited edited, Source) { return HasLineBreak(edited.question); },
     "Carriage returns are not allowed in a question.\n"_L1},
    {[](Edited edited, Source) { return edited.question.size() > 255; },
     "Please keep the question length to 255 characters or less.\n"_L1},
    {[](Edited edited, Source) { return edited.columnName.isEmpty(); },
     "Please enter a column name.\n"_L1},
    {[](Edited edited, Source) { return edited.columnName.size() > 255; },
     "Please keep the column name length to 255 characters or less.\n"_L1},
    {[](Edited edited, Source) { return (edited.title + edited.columnName).contains(u'"'); },
     "Double quotes are not allowed in Title and Column Name."_L1},
    {[](Edited edited, Source source) { return source.ColumnNameUsedElsewhere(edited.columnName); },
     "The column name already exists. Please enter a different name.\n"_L1},
    {[](Edited edited, Source) { return HasItems(edited.type) && edited.items.isEmpty(); },
     "Please enter at least one item."_L1},
    {[](Edited edited, Source) {
         return edited.type == "Pulldown List"_L1 && edited.items.size() > 255;
     },
     "Please keep the list to 255 items or less."_L1},
    {[](Edited edited, Source) {
         return edited.type == "Checkboxes"_L1 && edited.items.size() > 32;
     },
     "Please keep the Check Box to 32 items or less."_L1},
};

} // namespace

void TrimEdited(EditedQuestion &edited)
{
    edited.title = TrimBlanks(edited.title).toString();
    edited.question = TrimBlanks(edited.question).toString();
}

QString ObjectionsTo(const EditedQuestion &edited, const clsDataSource &source)
{
    QString objections;
    for (const Rule &rule : rules)
        if (rule.fails(edited, source))
            objections += rule.message;
    return objections;
}

void ReplaceCurrentQuestion(clsDataSource &source, const EditedQuestion &edited)
{
    QuestionRow &row = source.Questions().Current();
    row.Title = edited.title;
    row.Question = edited.question;
    row.Type = edited.type;
    row.ColumnName = edited.columnName;

    source.FilterItems(row.Id);
    source.Items().DeleteShown();
    source.ClearItemFilter();
    if (!HasItems(edited.type))
        return;
    for (const QString &item : edited.items)
        source.Items().Append({.Id = row.Id, .Item = item});
}

QStringList ItemsOf(const clsDataSource &source, int questionId)
{
    QStringList items;
    for (const ItemRow &row : source.Items().Rows())
        if (row.Id == questionId)
            items += row.Item;
    return items;
}

} // namespace vellumo
