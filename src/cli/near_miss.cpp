#include "cli/near_miss.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace vellumo {
namespace {

/// How many letters have to be put in, taken out or replaced to make one word of the other.
int Distance(QStringView one, QStringView other)
{
    std::vector<int> row(static_cast<size_t>(other.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (const QChar letter : one) {
        int diagonal = row[0]++;
        for (size_t i = 1; i < row.size(); ++i) {
            const int replaced = diagonal + (other[static_cast<qsizetype>(i) - 1] != letter);
            diagonal = row[i];
            row[i] = std::min({row[i] + 1, row[i - 1] + 1, replaced});
        }
    }
    return row.back();
}

} // namespace

QString NearMiss(QStringView typed, const QStringList &known)
{
    constexpr qsizetype longest = 20; // of what could be one of our words
    if (typed.isEmpty() || typed.size() > longest)
        return {};
    const auto nearest = std::ranges::min_element(
        known, {}, [typed](const QString &word) { return Distance(typed, word); });
    constexpr int mostMistakes = 2;
    if (nearest == known.end() ||
        Distance(typed, *nearest) > std::min<qsizetype>(mostMistakes, typed.size() / 2))
        return {};
    return *nearest;
}

} // namespace vellumo
