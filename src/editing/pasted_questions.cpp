#include "editing/pasted_questions.h"

#include "editing/pasted_items.h"
#include "editing/question_list.h"
#include "editing/wizard_rules.h"
#include "model/limits.h"
#include "model/question_types.h"
#include "model/texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Gives the question a name that is free; why there is none, or empty.
QString Rename(Question &question, const clsDataSource &source)
{
    const QString name = TrimBlanks(question.columnName).toString();
    if (!source.ColumnNameExists(name))
        return {};
    question.columnName = FreeColumnName(source, name);
    return question.columnName.isEmpty() ? nameTooLongToCopy : QString();
}

/// What the wizard would say on its way through the steps.
QString Objection(Question &question, const clsDataSource &source)
{
    if (!question.type.isEmpty() && !TypeNamed(question.type))
        return u"There is no question type of this name."_s;
    QString objection = Rename(question, source);
    for (int step = 1; step <= 4 && objection.isEmpty(); ++step)
        objection = ObjectionToNext(step, question, source);
    if (objection.isEmpty() && HasItems(question.type))
        objection = ObjectionToFinish(5, question);
    return objection;
}

QString NoPlace(int left)
{
    const QString places = left == 1 ? u"is 1 place"_s : u"are %1 places"_s.arg(left);
    return u"There %1 left for questions, and the clipboard has more. Nothing was added."_s.arg(
        places);
}

} // namespace

QString PasteQuestions(clsDataSource &source, const QList<CopiedQuestion> &questions)
{
    clsDataSource trial = source;
    Refusals refusals;
    for (const CopiedQuestion &copied : questions) {
        Question question = copied.question;
        const QString objection =
            copied.objection.isEmpty() ? Objection(question, trial) : copied.objection;
        if (!objection.isEmpty())
            refusals.Add(u"Row %1"_s.arg(copied.row), objection);
        else if (!RefusalWhenFull(trial).isEmpty())
            return NoPlace(
                std::max(static_cast<int>(questionCountLimit.most) - source.QuestionCount(), 0));
        else
            AppendQuestion(trial, question);
    }
    source = trial;
    return refusals.Text();
}

} // namespace vellumo
