#include "editing/title_history.h"

#include <algorithm>

namespace vellumo {
namespace {

constexpr qsizetype places = 10;

} // namespace

void RememberTitle(const QString &title, QStringList &titleList, QStringList &offered)
{
    if (titleList.contains(title))
        return;
    offered += title;
    const qsizetype used = std::min(offered.size(), places);
    titleList.resize(std::max(titleList.size(), used));
    if (offered.size() > places)
        std::shift_left(titleList.begin(), titleList.begin() + places, 1);
    titleList[used - 1] = title;
}

} // namespace vellumo
