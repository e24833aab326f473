#include "model/clsDataSource.h"

#include <limits>

namespace vellumo {
namespace {

template <typename OptionalTable> auto &Available(OptionalTable &table)
{
    if (!table)
        throw RecordsetUnavailable();
    return *table;
}

} // namespace

Table<QuestionRow> &clsDataSource::GetDataMember()
{
    if (!m_rcMain)
        CreateQuestionTable();
    if (!m_rcChilds)
        CreateItemTable();
    return *m_rcMain;
}

void clsDataSource::CreateQuestionTable()
{
    m_rcMain.emplace();
}
void clsDataSource::CreateItemTable()
{
    m_rcChilds.emplace();
}

Table<QuestionRow> &clsDataSource::Questions()
{
    return Available(m_rcMain);
}
const Table<QuestionRow> &clsDataSource::Questions() const
{
    return Available(m_rcMain);
}
Table<ItemRow> &clsDataSource::Items()
{
    return Available(m_rcChilds);
}
const Table<ItemRow> &clsDataSource::Items() const
{
    return Available(m_rcChilds);
}

void clsDataSource::CloseQuestions()
{
    m_rcMain.reset();
}

bool clsDataSource::AtEnd() const
{
    return Questions().AtEnd();
}
bool clsDataSource::AtStart() const
{
    return Questions().AtStart();
}
int clsDataSource::QuestionCount() const
{
    return static_cast<int>(Questions().Count());
}

clsDataSource::Position clsDataSource::GetPosition() const
{
    return Questions().GetPosition();
}
void clsDataSource::SetPosition(Position position)
{
    Questions().SetPosition(position);
}

void clsDataSource::MoveFirst()
{
    Questions().MoveFirst();
}
void clsDataSource::MoveLast()
{
    Questions().MoveLast();
}

void clsDataSource::MoveNext()
{
    Questions().MoveNext();
    if (AtEnd())
        MoveLast();
}

void clsDataSource::AddQuestion()
{
    Questions().Append();
}
void clsDataSource::AddItem()
{
    Items().Append();
}

void clsDataSource::DeleteQuestion()
{
    Questions().Delete();
}
void clsDataSource::ClearQuestions()
{
    Questions().Clear();
}

void clsDataSource::ClearItems()
{
    Items().Clear();
    m_maxId = 1;
}

void clsDataSource::FilterItems(int questionId)
{
    Items().SetFilter([questionId](const ItemRow &row) { return row.Id == questionId; });
}

void clsDataSource::ClearItemFilter()
{
    Items().ClearFilter();
}

QStringList clsDataSource::ItemsOf(int questionId) const
{
    QStringList items;
    for (const ItemRow &row : Items().Rows())
        if (row.Id == questionId)
            items += row.Item;
    return items;
}

QHash<int, QStringList> clsDataSource::ItemsById() const
{
    QHash<int, QStringList> items;
    for (const ItemRow &row : Items().Rows())
        items[row.Id] += row.Item;
    return items;
}

void clsDataSource::ReplaceItems(int questionId, const QStringList &items)
{
    FilterItems(questionId);
    Items().DeleteShown();
    ClearItemFilter();
    AppendItems(questionId, items);
}

void clsDataSource::AppendItems(int questionId, const QStringList &items)
{
    for (const QString &item : items)
        Items().Append({.Id = questionId, .Item = item});
}

bool clsDataSource::ColumnNameExists(QStringView name) const
{
    return std::ranges::any_of(Questions().Shown(),
                               [name](const QuestionRow *row) { return row->ColumnName == name; });
}

bool clsDataSource::ColumnNameUsedElsewhere(QStringView name) const
{
    const QuestionRow *current = AtEnd() || AtStart() ? nullptr : &Questions().Current();
    return std::ranges::any_of(Questions().Shown(), [name, current](const QuestionRow *row) {
        return row->ColumnName == name && row != current;
    });
}

int clsDataSource::IssueId()
{
    const int id = m_maxId;
    if (m_maxId < std::numeric_limits<int>::max())
        ++m_maxId;
    return id;
}

} // namespace vellumo
