#include "ui/main/rescue_offer.h"

#include "ui/common/prompts.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

std::vector<RescuedWork> LatestFirst(std::vector<RescueCopy> copies)
{
    std::vector<RescuedWork> left;
    for (RescueCopy &copy : copies)
        if (std::optional<Snapshot> snapshot = copy.Read())
            left.push_back({std::move(copy), std::move(*snapshot)});
    std::ranges::stable_sort(left, std::ranges::greater(),
                             [](const RescuedWork &work) { return work.snapshot.taken; });
    return left;
}

bool IsWanted(const Snapshot &snapshot, QWidget *window)
{
    const QString name =
        snapshot.path.isEmpty() ? u"A new project"_s : QFileInfo(snapshot.path).fileName();
    const QString time = snapshot.taken.toLocalTime().toString(u"yyyy-MM-dd HH:mm:ss");
    QStringList more = {u"The copy was made at %1."_s.arg(time)};
    if (!snapshot.path.isEmpty())
        more += snapshot.path;
    return AskYesNo(window,
                    name + " was not saved when Vellumo Designer ended. "
                           "Do you want to open the rescued copy?"_L1,
                    more.join(u'\n'), QMessageBox::Yes) == "Yes"_L1;
}

} // namespace

std::optional<RescuedWork> OfferRescuedWork(QWidget *window, const QString &stateFolder)
{
    if (stateFolder.isEmpty())
        return std::nullopt;
    for (RescuedWork &work : LatestFirst(RescueCopy::TakeOver(stateFolder))) {
        if (IsWanted(work.snapshot, window))
            return std::move(work);
        work.copy.Remove();
    }
    return std::nullopt;
}

} // namespace vellumo
