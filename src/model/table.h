#pragma once

#include <QList>

#include <algorithm>
#include <functional>
#include <vector>

namespace vellumo {

/// Rows in the order in which they were added, with a cursor and a filter.
///
/// Copies share their rows until one of them changes, so that a copy costs nothing.
///
/// While a filter is set the table behaves as if it held only the rows that pass. The cursor stands
/// on a row, before the first or past the last; an empty table is at its start and at its end.
template <typename Row> class Table
{
public:
    using Filter = std::function<bool(const Row &)>;
    /// A place of the cursor; good until a row is deleted.
    using Position = qsizetype;

    qsizetype Count() const { return m_filter ? std::ranges::count_if(m_rows, m_filter) : End(); }
    bool AtStart() const { return m_cursor < 0 || NextShown(0) == End(); }
    bool AtEnd() const { return m_cursor >= End() || NextShown(0) == End(); }

    /// The row under the cursor, which must stand on one.
    Row &Current() { return m_rows[CurrentIndex()]; }
    const Row &Current() const { return m_rows.at(CurrentIndex()); }

    /// All rows, whatever the filter, in table order.
    const QList<Row> &Rows() const { return m_rows; }

    /// Puts other rows in the place of all and drops the filter. The cursor stays at its number, or
    /// goes to the end.
    void SetRows(QList<Row> rows)
    {
        m_filter = {};
        m_rows = std::move(rows);
        m_cursor = std::min(m_cursor, End());
    }

    /// The rows that pass the filter, in table order; good until a row is added or deleted. The
    /// cursor stays where it is.
    std::vector<const Row *> Shown() const
    {
        std::vector<const Row *> shown;
        for (const Row &row : m_rows)
            if (Passes(row))
                shown.push_back(&row);
        return shown;
    }

    Position GetPosition() const { return m_cursor; }
    void SetPosition(Position position)
    {
        Q_ASSERT(position >= -1 && position <= End());
        m_cursor = position;
    }

    void MoveFirst() { m_cursor = NextShown(0); }
    void MoveLast() { m_cursor = PreviousShown(End() - 1); }
    void MoveNext() { m_cursor = NextShown(std::min(m_cursor, End() - 1) + 1); }
    void MovePrevious() { m_cursor = PreviousShown(std::max<Position>(m_cursor, 0) - 1); }

    /// Appends a row, whether it passes the filter or not, and makes it current.
    Row &Append(Row row = {})
    {
        m_rows.push_back(std::move(row));
        m_cursor = End() - 1;
        return m_rows.back();
    }

    /// Deletes the current row; the one that followed becomes current, or the end is reached.
    void Delete()
    {
        m_rows.removeAt(CurrentIndex());
        m_cursor = NextShown(m_cursor);
    }

    /// Deletes every row that passes the filter, in one pass over the table.
    void DeleteShown()
    {
        m_rows.removeIf([this](const Row &row) { return Passes(row); });
        m_cursor = End();
    }

    /// Deletes every row and drops the filter.
    void Clear()
    {
        ClearFilter();
        DeleteShown();
    }

    /// Shows only the rows that pass; the cursor goes to the first of them.
    void SetFilter(Filter filter)
    {
        m_filter = std::move(filter);
        MoveFirst();
    }

    /// Shows all rows again; the cursor goes to the first.
    void ClearFilter() { SetFilter({}); }

private:
    Position End() const { return m_rows.size(); }
    bool Passes(const Row &row) const { return !m_filter || m_filter(row); }
    bool Passes(Position index) const { return Passes(m_rows.at(index)); }

    Position CurrentIndex() const
    {
        Q_ASSERT(m_cursor >= 0 && m_cursor < End());
        return m_cursor;
    }

    Position NextShown(Position index) const
    {
        while (index < End() && !Passes(index))
            ++index;
        return index;
    }

    Position PreviousShown(Position index) const
    {
        while (index >= 0 && !Passes(index))
            --index;
        return index;
    }

    QList<Row> m_rows; // deleting the first row again and again moves nothing
    Filter m_filter;
    Position m_cursor = -1;
};

} // namespace vellumo
