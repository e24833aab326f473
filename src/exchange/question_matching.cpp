#include "exchange/question_matching.h"

#include <algorithm>

namespace vellumo {
namespace {

QString IdOf(const QuestionRow &row)
{
    return QString::number(row.Id);
}

QString ColumnNameOf(const QuestionRow &row)
{
    return row.ColumnName;
}

QString BothOf(const QuestionRow &row)
{
    return IdOf(row) + u' ' + row.ColumnName;
}

/// Whether two questions have something in common that people know them by. The Ids of projects
/// that were not made of each other agree by chance.
bool AreAlike(const QuestionRow &one, const QuestionRow &other)
{
    const auto share = [&](QString QuestionRow::*text) {
        return !(one.*text).isEmpty() && one.*text == other.*text;
    };
    return share(&QuestionRow::ColumnName) || share(&QuestionRow::Title) ||
           share(&QuestionRow::Question);
}

QStringList Keys(const QList<QuestionRow> &rows, QString (*keyOf)(const QuestionRow &row))
{
    QStringList keys;
    std::ranges::transform(rows, std::back_inserter(keys), keyOf);
    return keys;
}

} // namespace

RowMatching MatchQuestions(const QList<QuestionRow> &before, const QList<QuestionRow> &after)
{
    RowMatching matching(before.size(), after.size());
    const auto pairBy = [&](auto keyOf, const RowMatching::Acceptance &accepts = {}) {
        matching.Pair(Keys(before, keyOf), Keys(after, keyOf), accepts);
    };
    pairBy(BothOf); // a file may have an Id twice
    pairBy(IdOf, [&](qsizetype was, qsizetype is) { return AreAlike(before[was], after[is]); });
    pairBy(ColumnNameOf);
    return matching;
}

} // namespace vellumo
