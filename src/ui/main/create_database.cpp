#include "ui/main/create_database.h"

#include "palmgen/build_with_tools.h"
#include "palmgen/create_messages.h"
#include "ui/common/prompts.h"
#include "ui/main/created_database.h"

#include <QGuiApplication>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The window does not repaint while a tool runs; the cursor says so.
CreateReport MakeWithWaitCursor(const Project &project, const CreatePlace &place,
                                const QString &identifier)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard(QGuiApplication::restoreOverrideCursor);
    return MakeDatabase(project, place, identifier);
}

} // namespace

void CreateDatabase(const Project &project, const Environment &environment, QWidget *window)
{
    const BuildFolders folders = {environment.FolderToWriteIn(), environment.projectsFolder};
    const CreateReport report = MakeWithWaitCursor(
        project, {folders, BuildWithTools(environment.runTool)}, environment.makeIdentifier());

    for (const QString &message : MessagesOfTools(report))
        ShowBox(window, {.text = message, .icon = QMessageBox::Warning, .title = u"Error"_s});
    if (report.end != CreateEnd::BuildEnded)
        return ShowCritical(window, MessageOfFailure(report), ReasonOf(report));
    // Success is told, by intention, whatever the tools said; only then the database is looked at.
    ShowInformation(window, MessageOfSuccess(report, folders));
    environment.open(report.database);
    environment.open(folders.databases);
    if (const auto fault = FaultOfCreated(report, project))
        ShowCritical(window, fault->text, fault->reasons);
}

} // namespace vellumo
