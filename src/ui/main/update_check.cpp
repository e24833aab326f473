#include "ui/main/update_check.h"

#include "ui/common/prompts.h"
#include "ui/main/version_log.h"
#include "ui/main/web_answer.h"

#include <QUrl>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

bool UserWantsIt(QWidget *parent)
{
    const Box box = {.text = u"A new version of Vellumo is available for download.  "
                             "Would you like to download it?"_s,
                     .title = u"Vellumo Update"_s,
                     .buttons = QMessageBox::Yes | QMessageBox::No,
                     .defaultButton = QMessageBox::No,
                     .closeButton = QMessageBox::No};
    return ShowBox(parent, box) == QMessageBox::Yes;
}

} // namespace

void CheckForUpdate(QWidget *parent, const Environment &environment,
                    std::chrono::milliseconds timeOut)
{
    const QUrl address(environment.siteAddress + "/vmversionlog"_L1);
    if (IsNewer(StartOfAnswer(address, versionLogStart, timeOut), environment.version) &&
        UserWantsIt(parent))
        environment.open(environment.siteAddress + "/download"_L1);
}

} // namespace vellumo
