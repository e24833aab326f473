#include "exchange/row_reader.h"

#include "editing/pasted_items.h"
#include "exchange/form_rows.h"
#include "exchange/list_cell.h"
#include "exchange/storable_text.h"
#include "model/limits.h"
#include "model/question_types.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Takes a row's cells one by one and gathers what cannot be taken.
class RowReader
{
public:
    RowReader(const CsvRow &row, const Sheet &sheet)
        : m_row(row), m_sheet(sheet), m_read{.row = row.number}
    {}

    SheetQuestion Read()
    {
        m_read.id = Number(idCaption);
        m_read.order = Number(orderCaption);
        m_read.question = {.title = Line(QuestionColumn::Title),
                           .question = WithLineFeeds(Storable(QuestionColumn::Text)),
                           .type = TypeCalled(Cell(QuestionColumn::Type)),
                           .columnName = Line(QuestionColumn::ColumnName)};
        ReadItems();
        m_read.refusals += CellsWithoutCaption(m_sheet, m_row);
        return m_read;
    }

private:
    QString Cell(QuestionColumn column) const { return m_sheet.Cell(m_row, CaptionOf(column)); }

    void Refuse(QLatin1StringView caption, const QString &reason)
    {
        m_read.refusals.append({m_row.number, caption, reason});
    }

    std::optional<int> Number(QLatin1StringView caption)
    {
        const QString cell = m_sheet.Cell(m_row, caption);
        if (cell.trimmed().isEmpty())
            return {};
        const Result<int> number = NumberIn(cell);
        if (number)
            return *number;
        Refuse(caption, number.error().text);
        return {};
    }

    /// A text of the project.
    QString Storable(QuestionColumn column)
    {
        QString text = Cell(column);
        if (const QString objection = ObjectionToStoring(text); !objection.isEmpty())
            Refuse(CaptionOf(column), objection);
        return text;
    }

    /// A text that the designer asks for in a box of one line.
    QString Line(QuestionColumn column)
    {
        QString text = Storable(column);
        const auto isBreak = [](QChar c) { return lineBreaks.characters.contains(c); };
        if (std::ranges::any_of(text, isBreak))
            Refuse(CaptionOf(column), lineBreaks.message);
        return text;
    }

    void ReadItems()
    {
        if (!TypeNamed(m_read.question.type))
            return;
        const Result<QStringList> items = ReadList(Cell(QuestionColumn::Items));
        if (items && items->isEmpty())
            return;
        QString refusal = u"A question of this type has no items."_s;
        if (HasItems(m_read.question.type))
            refusal = items ? Put(*items) : items.error().text;
        if (!refusal.isEmpty())
            Refuse(CaptionOf(QuestionColumn::Items), refusal);
    }

    /// Gives the first refusal; empty = there was none.
    QString Put(const QStringList &items)
    {
        ItemList list;
        // One more than a list can have is enough for its rule.
        for (const QString &item : items.first(std::min(items.size(), pulldownLimit.most + 1))) {
            QString refusal = item.isEmpty() ? u"It is empty."_s : ObjectionToStoring(item);
            if (refusal.isEmpty())
                refusal = PutItem(list, item);
            if (!refusal.isEmpty())
                return u"Item %1: "_s.arg(list.Items().size() + 1) + refusal;
        }
        m_read.question.items = list.Items();
        return {};
    }

    const CsvRow &m_row;
    const Sheet &m_sheet;
    SheetQuestion m_read;
};

} // namespace

SheetQuestion QuestionIn(const CsvRow &row, const Sheet &sheet)
{
    return RowReader(row, sheet).Read();
}

void Refuse(SheetQuestion &question, const QList<QuestionObjection> &objections)
{
    for (const auto &[column, reason] : objections) {
        const QString caption = CaptionOf(column);
        const bool isRefused = std::ranges::find(question.refusals, caption, &Refusal::column) !=
                               question.refusals.end();
        if (!isRefused)
            question.refusals.append({question.row, caption, reason});
    }
}

} // namespace vellumo
