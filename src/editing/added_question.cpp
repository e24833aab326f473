#include "editing/added_question.h"

#include "editing/question_list.h"
#include "editing/wizard_rules.h"
#include "model/question_types.h"
#include "model/texts.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// What the steps 1 to 5 of the wizard ask for.
constexpr std::array columnOfStep = {QuestionColumn::Type, QuestionColumn::Title,
                                     QuestionColumn::ColumnName, QuestionColumn::Text,
                                     QuestionColumn::Items};

/// Gives the question a name that is free; why there is none, or empty.
QString Rename(Question &question, const clsDataSource &source)
{
    const QString name = TrimBlanks(question.columnName).toString();
    if (!source.ColumnNameExists(name))
        return {};
    const QString free = FreeColumnName(source, name);
    if (free.isEmpty())
        return nameTooLongToCopy;
    question.columnName = free;
    return {};
}

QString ObjectionToStep(int step, Question &question, const clsDataSource &source)
{
    if (step == 5)
        return HasItems(question.type) ? ObjectionToFinish(step, question) : QString();
    return ObjectionToNext(step, question, source);
}

} // namespace

QList<QuestionObjection> ObjectionsToAdding(Question &question, const clsDataSource &source,
                                            TakenName takenName)
{
    QList<QuestionObjection> objections;
    if (!question.type.isEmpty() && !TypeNamed(question.type))
        objections += {QuestionColumn::Type, u"There is no question type of this name."_s};
    bool hasName = true;
    if (takenName == TakenName::Rename)
        if (const QString objection = Rename(question, source); !objection.isEmpty()) {
            objections += {QuestionColumn::ColumnName, objection};
            hasName = false;
        }
    for (int step = 1; step <= 5; ++step) {
        const QuestionColumn column = columnOfStep[static_cast<size_t>(step - 1)];
        if (column == QuestionColumn::ColumnName && !hasName)
            continue;
        if (const QString objection = ObjectionToStep(step, question, source); !objection.isEmpty())
            objections += {column, objection};
    }
    return objections;
}

} // namespace vellumo
