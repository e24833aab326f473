#include "exchange/sheet_import.h"

#include "editing/question_list.h"
#include "editing/wizard_rules.h"
#include "exchange/form_rows.h"
#include "exchange/row_reader.h"
#include "model/question_types.h"

#include <QSet>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr int largestId = std::numeric_limits<int>::max();

/// Adds the questions of a sheet to a project.
class Importer
{
public:
    /// No fresh Id will be one of the taken ones.
    Importer(Project project, TakenName takenName, const QSet<int> &taken)
        : m_import{.project = std::move(project)}, m_takenName(takenName), m_taken(taken)
    {}

    SheetImport Import(const QList<SheetQuestion> &questions)
    {
        int place = Source().QuestionCount();
        for (const SheetQuestion &question : questions) {
            if (const QString full = RefusalWhenFull(Source()); !full.isEmpty()) {
                m_import.refusals.append({question.row, {}, full, ++place});
                ++m_import.leftOut;
            } else {
                Add(question, ++place);
            }
        }
        Source().MoveFirst();
        return std::move(m_import);
    }

private:
    clsDataSource &Source() { return m_import.project.source; }

    void Add(SheetQuestion question, int place)
    {
        Refuse(question, ObjectionsToAdding(question.question, Source(), m_takenName));
        if (question.refusals.isEmpty() && question.id)
            ShareItems(question);
        else if (question.refusals.isEmpty())
            PassTakenIds(question);
        for (Refusal &refusal : question.refusals)
            refusal.question = place;
        m_import.refusals += question.refusals;
        if (question.refusals.isEmpty())
            Append(question);
        ++(question.refusals.isEmpty() ? m_import.added : m_import.leftOut);
    }

    /// Questions that share an Id share their items, which are added once.
    void ShareItems(SheetQuestion &question)
    {
        if (!HasItems(question.question.type))
            return;
        const QStringList items = Source().ItemsOf(*question.id);
        if (items.isEmpty())
            return;
        if (items != question.question.items)
            question.refusals.append(
                {question.row, idCaption, u"Another row has this Id and other items."_s});
        question.question.items.clear();
    }

    void PassTakenIds(SheetQuestion &question)
    {
        while (m_taken.contains(Source().MaxId()) && Source().MaxId() < largestId)
            Source().IssueId();
        if (m_taken.contains(Source().MaxId()))
            question.refusals.append({question.row, idCaption, u"There is no Id left."_s});
    }

    void Append(const SheetQuestion &question)
    {
        const int nextId = Source().MaxId();
        if (question.id)
            Source().SetMaxId(*question.id);
        AppendQuestion(Source(), question.question);
        m_taken += Source().Questions().Current().Id;
        if (question.id)
            Source().SetMaxId(nextId);
        if (question.order)
            Source().Questions().Current().Order = *question.order;
    }

    SheetImport m_import;
    TakenName m_takenName;
    QSet<int> m_taken;
};

QList<SheetQuestion> QuestionsIn(const Sheet &sheet)
{
    QList<SheetQuestion> questions;
    for (const CsvRow &row : sheet.questions)
        questions += QuestionIn(row, sheet);
    return questions;
}

/// The Ids that a sheet names.
QSet<int> IdsOf(const QList<SheetQuestion> &questions, const QList<ItemOrderEntry> &itemOrder)
{
    QSet<int> ids;
    for (const SheetQuestion &question : questions)
        if (question.id)
            ids += *question.id;
    for (const ItemOrderEntry &entry : itemOrder)
        ids += entry.id;
    return ids;
}

QSet<int> IdsOf(const clsDataSource &source)
{
    QSet<int> ids;
    for (const QuestionRow &row : source.Questions().Rows())
        ids += row.Id;
    for (const ItemRow &row : source.Items().Rows())
        ids += row.Id;
    return ids;
}

/// Behind all that are there, as if each of them had been issued.
int NextId(const QSet<int> &ids)
{
    const auto last = std::ranges::max_element(ids);
    return last == ids.end() ? 1 : std::clamp(*last, 0, largestId - 1) + 1;
}

} // namespace

SheetImport ImportSheet(const Sheet &sheet)
{
    SheetForm form = ReadFormRows(sheet.form);
    const QList<SheetQuestion> questions = QuestionsIn(sheet);
    const QSet<int> ids = IdsOf(questions, form.itemOrder);
    if (!form.hasNextId)
        form.project.source.SetMaxId(NextId(ids));

    SheetImport import =
        Importer(std::move(form.project), TakenName::Refuse, ids).Import(questions);
    if (const Outcome arranged = ArrangeItems(import.project.source, form.itemOrder); !arranged)
        form.refusals.append({form.itemOrderRow, itemOrderName, arranged.error().text});
    import.refusals = form.refusals + RefusedCaptions(sheet) + import.refusals;
    return import;
}

SheetImport AppendSheet(const Project &project, const Sheet &sheet)
{
    QList<SheetQuestion> questions = QuestionsIn(sheet);
    for (SheetQuestion &question : questions)
        question.id = question.order = {};
    SheetImport import =
        Importer(project, TakenName::Rename, IdsOf(project.source)).Import(questions);
    import.refusals = RefusedCaptions(sheet) + import.refusals;
    return import;
}

} // namespace vellumo
