#include "editing/question_list.h"

#include "model/question_types.h"
#include "model/texts.h"

#include <cstdlib>
#include <utility>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Moves the content of the current row by one row; the cursor follows it.
void MoveContent(Table<QuestionRow> &questions, int distance)
{
    const auto position = questions.GetPosition();
    QuestionRow &from = questions.Current();
    questions.SetPosition(position + distance);
    QuestionRow &to = questions.Current();
    std::swap(from, to);
    std::swap(from.Order, to.Order);
}

} // namespace

QString RefusalWithoutSelection(const clsDataSource &source)
{
    const bool selected = source.QuestionCount() > 0 && !source.AtEnd();
    return selected ? QString() : u"Please select a question."_s;
}

QString RefusalWhenFull(const clsDataSource &source)
{
    return questionCountLimit.Objection(source.QuestionCount() + 1);
}

void RemoveQuestion(clsDataSource &source)
{
    Table<QuestionRow> &questions = source.Questions();
    const int id = questions.Current().Id;
    const auto position = questions.GetPosition();

    for (questions.MoveNext(); !questions.AtEnd(); questions.MoveNext())
        --questions.Current().Order;

    questions.SetPosition(position);
    questions.Delete();
    if (questions.AtEnd())
        questions.MoveLast();
    source.ReplaceItems(id, {});
}

bool MoveQuestionUp(clsDataSource &source)
{
    Table<QuestionRow> &questions = source.Questions();
    if (questions.Current().Order == 1 || questions.GetPosition() == 0)
        return false;
    MoveContent(questions, -1);
    return true;
}

bool MoveQuestionDown(clsDataSource &source)
{
    Table<QuestionRow> &questions = source.Questions();
    const auto count = questions.Count();
    if (questions.Current().Order == count || questions.GetPosition() == count - 1)
        return false;
    MoveContent(questions, 1);
    return true;
}

bool MoveQuestion(clsDataSource &source, qsizetype distance)
{
    const auto move = distance < 0 ? MoveQuestionUp : MoveQuestionDown;
    bool moved = false;
    for (qsizetype step = std::abs(distance); step > 0 && move(source); --step)
        moved = true;
    return moved;
}

QString FreeColumnName(const clsDataSource &source, const QString &name)
{
    const QString trimmed = TrimBlanks(name).toString();
    for (int n = 1;; ++n) {
        QString candidate = trimmed + u'(' + QString::number(n) + u')';
        if (candidate.size() > columnNameLimit.most)
            return {};
        if (!source.ColumnNameExists(candidate))
            return candidate;
    }
}

Outcome DuplicateQuestion(clsDataSource &source)
{
    Table<QuestionRow> &questions = source.Questions();
    const auto position = questions.GetPosition();
    QuestionRow copy = questions.Current();
    const int originalId = copy.Id;

    copy.ColumnName = FreeColumnName(source, copy.ColumnName);
    if (copy.ColumnName.isEmpty())
        return Error{nameTooLongToCopy};
    copy.Title = TrimBlanks(copy.Title).toString();
    copy.Order = source.QuestionCount() + 1;
    copy.Id = source.IssueId();
    questions.Append(copy);

    if (HasItems(copy.Type))
        source.AppendItems(copy.Id, source.ItemsOf(originalId));
    questions.SetPosition(position);
    return done;
}

} // namespace vellumo
