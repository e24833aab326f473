#include "editing/question_rules.h"

#include "model/limits.h"
#include "model/question_types.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QLatin1StringView If(bool broken, QLatin1StringView message)
{
    return broken ? message : QLatin1StringView();
}

} // namespace

QLatin1StringView TypeMissing(const Question &question)
{
    return If(question.type.isEmpty(), "Please select an item."_L1);
}

QLatin1StringView TitleTooLong(const Question &question)
{
    return titleLimit.Objection(question.title.size());
}

QLatin1StringView TitleWithQuotes(const Question &question)
{
    return If(question.title.contains(u'"'), doubleQuotes.message);
}

QLatin1StringView ColumnNameMissing(const Question &question)
{
    return If(question.columnName.isEmpty(), "Please enter a column name."_L1);
}

QLatin1StringView ColumnNameTooLong(const Question &question)
{
    return columnNameLimit.Objection(question.columnName.size());
}

QLatin1StringView ColumnNameWithQuotes(const Question &question)
{
    return If(question.columnName.contains(u'"'), doubleQuotes.message);
}

QLatin1StringView TextMissing(const Question &question)
{
    return If(question.question.isEmpty(), "Please enter a question."_L1);
}

QLatin1StringView TextWithLineBreaks(const Question &question)
{
    return If(question.question.contains(u'\r') || question.question.contains(u'\n'),
              "Carriage returns are not allowed in a question."_L1);
}

QLatin1StringView TextTooLong(const Question &question)
{
    return questionTextLimit.Objection(question.question.size());
}

QLatin1StringView ItemsMissing(const Question &question)
{
    return If(HasItems(question.type) && question.items.isEmpty(),
              "Please enter at least one item."_L1);
}

QLatin1StringView ItemsTooMany(const Question &question)
{
    const QuestionType *type = TypeNamed(question.type);
    return type && type->items ? type->items->count.Objection(question.items.size())
                               : QLatin1StringView();
}

} // namespace vellumo
