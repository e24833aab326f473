#include "exchange/row_matching.h"

#include <QHash>

#include <algorithm>
#include <iterator>

namespace vellumo {

RowMatching::RowMatching(qsizetype countBefore, qsizetype countAfter)
    : m_before(countAfter, none), m_gone(countBefore, true)
{}

void RowMatching::Pair(const QStringList &keysBefore, const QStringList &keysAfter,
                       const Acceptance &accepts)
{
    Q_ASSERT(keysBefore.size() == m_gone.size() && keysAfter.size() == m_before.size());
    QHash<QString, QList<qsizetype>> waiting;
    for (qsizetype row = 0; row < keysBefore.size(); ++row)
        if (m_gone[row])
            waiting[keysBefore[row]] += row;
    for (qsizetype row = 0; row < keysAfter.size(); ++row) {
        const auto found = waiting.find(keysAfter[row]);
        if (m_before[row] != none || found == waiting.end() || found->isEmpty())
            continue;
        const qsizetype partner = found->takeFirst();
        if (accepts && !accepts(partner, row))
            continue;
        m_before[row] = partner;
        m_gone[partner] = false;
    }
}

// What is not moved is a longest rising sequence among the former places.
QList<bool> RowMatching::Moved() const
{
    QList<qsizetype> ends; // the row that ends the best sequence of one, two, ... rows
    QList<qsizetype> previous(m_before.size(), none); // of a row in its sequence
    QList<bool> moved(m_before.size(), false);
    for (qsizetype row = 0; row < m_before.size(); ++row) {
        if (m_before[row] == none)
            continue;
        moved[row] = true;
        const auto end = std::ranges::lower_bound(
            ends, m_before[row], {}, [this](qsizetype ending) { return m_before[ending]; });
        if (end != ends.begin())
            previous[row] = *std::prev(end);
        if (end == ends.end())
            ends += row;
        else
            *end = row;
    }
    for (qsizetype row = ends.isEmpty() ? none : ends.last(); row != none; row = previous[row])
        moved[row] = false;
    return moved;
}

} // namespace vellumo
