#include "exchange/merged_project.h"

#include "editing/question_list.h"
#include "editing/title_history.h"
#include "editing/wizard_rules.h"
#include "model/limits.h"
#include "model/question.h"
#include "model/texts.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QString RefusalWithoutPlaces(const clsDataSource &source, int wanted)
{
    const int left =
        std::max(static_cast<int>(questionCountLimit.most) - source.QuestionCount(), 0);
    if (wanted <= left)
        return {};
    return u"There %1 left for questions, and this project has %2."_s.arg(
        left == 1 ? u"is 1 place"_s : u"are %1 places"_s.arg(left), QString::number(wanted));
}

/// Makes the Ids that are issued next free ones, whatever a file says of them. False where there
/// are not as many.
bool FreeIds(clsDataSource &source, int wanted)
{
    if (wanted == 0)
        return true;
    int highest = std::max(source.MaxId(), 1) - 1;
    for (const QuestionRow &row : source.Questions().Rows())
        highest = std::max(highest, row.Id);
    for (const ItemRow &row : source.Items().Rows())
        highest = std::max(highest, row.Id);
    if (wanted > std::numeric_limits<int>::max() - 1 - highest)
        return false;
    source.SetMaxId(highest + 1);
    return true;
}

void RememberTitles(const QStringList &titles, QStringList &titleList)
{
    // A list that was never used has one empty title.
    titleList.removeAll(QString());
    QStringList offered = titleList;
    for (const QString &title : titles)
        if (!title.isEmpty())
            RememberTitle(title, titleList, offered);
    if (titleList.isEmpty())
        titleList += QString();
}

/// Appends the questions; where one cannot be, those before it have been.
Outcome AppendQuestions(clsDataSource &source, const clsDataSource &other)
{
    const QHash<int, QStringList> items = other.ItemsById();
    for (const QuestionRow &row : other.Questions().Rows()) {
        Question question = {.title = row.Title,
                             .question = row.Question,
                             .type = row.Type,
                             .columnName = TrimBlanks(row.ColumnName).toString(),
                             .items = items.value(row.Id)};
        if (source.ColumnNameExists(question.columnName)) {
            question.columnName = FreeColumnName(source, question.columnName);
            if (question.columnName.isEmpty())
                return Error{nameTooLongToCopy + ": "_L1 + row.ColumnName};
        }
        AppendQuestion(source, question);
    }
    return done;
}

} // namespace

Outcome AppendProject(Project &project, const Project &other)
{
    const int wanted = other.source.QuestionCount();
    if (const QString refusal = RefusalWithoutPlaces(project.source, wanted); !refusal.isEmpty())
        return Error{refusal};
    clsDataSource source = project.source;
    if (!FreeIds(source, wanted))
        return Error{u"There are no Ids left for its questions."_s};
    if (const Outcome appended = AppendQuestions(source, other.source); !appended)
        return appended.error();
    project.source = source;
    RememberTitles(other.TitleList, project.TitleList);
    return done;
}

} // namespace vellumo
