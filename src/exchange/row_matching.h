#pragma once

#include <QStringList>

#include <functional>

namespace vellumo {

/// Which rows of a list as it was are which of that list as it is. Takes time in proportion to the
/// rows, but for the search for moved ones, which takes n log n.
class RowMatching
{
public:
    static constexpr qsizetype none = -1;
    using Acceptance = std::function<bool(qsizetype before, qsizetype after)>;

    RowMatching(qsizetype countBefore, qsizetype countAfter);

    /// Pairs rows that have no partner yet and the same key, the first with the first. There is a
    /// key for every row; where a pair is not accepted, both stay alone.
    void Pair(const QStringList &keysBefore, const QStringList &keysAfter,
              const Acceptance &accepts = {});

    /// The row as it was of one as it is; none = it is new.
    qsizetype Before(qsizetype after) const { return m_before[after]; }
    bool IsGone(qsizetype before) const { return m_gone[before]; }

    /// For each row as it is, whether it was moved: as few as possible are, so that the others
    /// still stand in their order.
    QList<bool> Moved() const;

private:
    QList<qsizetype> m_before;
    QList<bool> m_gone;
};

} // namespace vellumo
