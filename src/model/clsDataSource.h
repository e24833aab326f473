#pragma once

#include "model/table.h"

#include <QHash>
#include <QStringList>

#include <optional>
#include <stdexcept>

namespace vellumo {

/// A question. Order is its position from 1; Id never changes and links it to its items.
struct QuestionRow {
    int Order = 0;
    QString Title = {};
    QString Question = {};
    QString Type = {}; ///< one of questionTypes, as its name
    QString ColumnName = {};
    int Id = 0;

    bool operator==(const QuestionRow &) const = default;
};

/// An item of the question whose Id it carries. The order of the rows is the order of the items.
struct ItemRow {
    int Id = 0;
    QString Item = {};

    bool operator==(const ItemRow &) const = default;
};

/// A table was used before it was created: a fault of the caller.
class RecordsetUnavailable : public std::logic_error
{
public:
    RecordsetUnavailable() : std::logic_error("Recordset isn't available yet") {}
};

/// The questions of a project and their items, with a cursor on the current question.
///
/// Owned by the Project. Every operation but the creating ones, CloseQuestions and those on MaxId
/// throws RecordsetUnavailable while the table that it needs does not exist.
class clsDataSource
{
public:
    using Position = Table<QuestionRow>::Position;

    /// The question table for the grid; creates both tables where they do not exist yet.
    Table<QuestionRow> &GetDataMember();
    void CreateQuestionTable();
    void CreateItemTable();

    Table<QuestionRow> &Questions();
    const Table<QuestionRow> &Questions() const;
    Table<ItemRow> &Items();
    const Table<ItemRow> &Items() const;
    void CloseQuestions();

    bool AtEnd() const;
    bool AtStart() const;
    int QuestionCount() const;

    /// Where the question cursor stands, for a caller who walks the table and comes back.
    /// Good until a question is deleted.
    Position GetPosition() const;
    void SetPosition(Position position);

    void MoveFirst();
    void MoveLast();
    /// Stays on the last row when it stands there: the cursor never rests past the end.
    void MoveNext();

    /// Appends an empty row and makes it current.
    void AddQuestion();
    void AddItem();

    /// Deletes the current question; the one that followed becomes current, or the end is reached.
    /// Its items stay.
    void DeleteQuestion();
    void ClearQuestions();
    /// Also sets MaxId back to 1.
    void ClearItems();

    /// Shows only the items of the question with this Id, until ClearItemFilter.
    void FilterItems(int questionId);
    void ClearItemFilter();

    /// The items of the question with this Id, in table order, whatever filter is set.
    QStringList ItemsOf(int questionId) const;
    /// The items of every Id that has any, likewise; in one pass over the table.
    QHash<int, QStringList> ItemsById() const;
    /// Appends items to the table under this Id.
    void AppendItems(int questionId, const QStringList &items);
    /// Puts items in the place of those of the question with this Id, at the end of the table. No
    /// filter is set afterwards.
    void ReplaceItems(int questionId, const QStringList &items);

    /// Whether a question has exactly this column name. The cursor stays where it was.
    bool ColumnNameExists(QStringView name) const;
    /// Whether a question other than the current one has exactly this column name.
    bool ColumnNameUsedElsewhere(QStringView name) const;

    /// The Id that the next new question receives.
    int MaxId() const { return m_maxId; }
    void SetMaxId(int maxId) { m_maxId = maxId; }
    /// Hands out MaxId for a new question and raises it by one (it stays at the largest number).
    int IssueId();

private:
    std::optional<Table<QuestionRow>> m_rcMain;
    std::optional<Table<ItemRow>> m_rcChilds;
    int m_maxId = 1;
};

} // namespace vellumo
