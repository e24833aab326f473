#include "designer/real_environment.h"

#include "platform/folders.h"
#include "platform/identifier.h"
#include "ui/main/site.h"

#include <QDesktopServices>
#include <QDir>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

void OpenWithDefaultAction(const QString &target)
{
    const bool isAddress = target.startsWith("https://"_L1) || target.startsWith("http://"_L1);
    QDesktopServices::openUrl(isAddress ? QUrl(target) : QUrl::fromLocalFile(target));
}

} // namespace

Environment RealEnvironment()
{
    const QString application = ApplicationFolder();
    return {.applicationFolder = application,
            .dataFolder = DataFolder(),
            .projectsFolder = ProjectsFolder(),
            .helpFile = application + QDir::separator() + "Vellumo_Help.chm"_L1,
            .siteAddress = SiteAddress(),
            .version = QStringLiteral(VELLUMO_VERSION),
            .stateFolder = StateFolder(),
            .makeIdentifier = MakeIdentifier,
            .runTool =
                [application](const ToolCall &call) {
                    return RunAndWait(call, {.folders = {application}});
                },
            .open = OpenWithDefaultAction};
}

} // namespace vellumo
