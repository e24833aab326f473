#include "editing/pasted_questions.h"

#include "editing/added_question.h"
#include "editing/pasted_items.h"
#include "editing/question_list.h"
#include "editing/wizard_rules.h"
#include "model/limits.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// What the wizard would say first on its way through the steps, with the column that it is about;
/// empty = nothing. Breaks of lines go, which the wizard's boxes of one line do not take.
QString Objection(CopiedQuestion &copied, const clsDataSource &source)
{
    Question &question = copied.question;
    question.title = OneLine(question.title);
    question.columnName = OneLine(question.columnName);
    for (QString &item : question.items)
        item = OneLine(item);
    auto objections = ObjectionsToAdding(question, source, TakenName::Rename);
    if (!copied.itemsObjection.isEmpty())
        objections = {{QuestionColumn::Items, copied.itemsObjection}};
    return objections.isEmpty()
               ? QString()
               : CaptionOf(objections.first().column) + ": "_L1 + objections.first().reason;
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
    for (CopiedQuestion copied : questions) {
        const QString objection = Objection(copied, trial);
        if (!objection.isEmpty())
            refusals.Add(u"Row %1, "_s.arg(copied.row) + objection);
        else if (!RefusalWhenFull(trial).isEmpty())
            return NoPlace(
                std::max(static_cast<int>(questionCountLimit.most) - source.QuestionCount(), 0));
        else
            AppendQuestion(trial, copied.question);
    }
    source = trial;
    return refusals.Text();
}

} // namespace vellumo
