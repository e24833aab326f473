#include "exchange/sheet_writer.h"

#include "editing/question_columns.h"
#include "exchange/csv.h"
#include "exchange/csv_text.h"
#include "exchange/form_rows.h"
#include "exchange/list_cell.h"
#include "exchange/sheet.h"
#include "model/question_types.h"

namespace vellumo {
namespace {

/// Whether some question has another number than its place.
bool HasOwnOrder(const QList<QuestionRow> &questions)
{
    for (qsizetype i = 0; i < questions.size(); ++i)
        if (questions[i].Order != i + 1)
            return true;
    return false;
}

} // namespace

QByteArray WriteSheet(const Project &project)
{
    const QList<QuestionRow> &questions = project.source.Questions().Rows();
    const QHash<int, QStringList> items = project.source.ItemsById();
    const bool hasOrder = HasOwnOrder(questions);

    QList<QStringList> rows = FormRows(project);
    rows.append({QStringList(), {idCaption}});
    if (hasOrder)
        rows.last() += orderCaption;
    for (const QuestionColumn column : questionColumns)
        rows.last() += CaptionOf(column);
    for (const QuestionRow &question : questions) {
        rows.append({QString::number(question.Id)});
        if (hasOrder)
            rows.last() += QString::number(question.Order);
        const bool hasItems = HasItems(question.Type);
        rows.last() += {question.Title, question.Question, question.Type, question.ColumnName,
                        hasItems ? WriteList(items.value(question.Id)) : QString()};
    }
    return WriteCsv(rows).prepend(byteOrderMark);
}

} // namespace vellumo
