#include "ui/main/create_database.h"

#include "palmgen/build_with_tools.h"
#include "palmgen/create_messages.h"
#include "ui/common/prompts.h"

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
    const BuildFolders folders = {environment.applicationFolder, environment.projectsFolder};
    const CreateReport report = MakeWithWaitCursor(
        project, {folders, BuildWithTools(environment.runTool)}, environment.makeIdentifier());

    for (const QString &message : MessagesOfTools(report))
        ShowBox(window, {.text = message, .icon = QMessageBox::Warning, .title = u"Error"_s});
    const bool failed = report.end != CreateEnd::BuildEnded;
    // A success is told, by intention, also after a tool that failed: what it said stands below.
    ShowBox(window, {.text = failed ? MessageOfFailure(report) : MessageOfSuccess(report, folders),
                     .icon = failed ? QMessageBox::Critical : QMessageBox::Information,
                     .informative = ReasonOf(report)});
    if (failed)
        return;
    environment.open(report.database);
    environment.open(folders.databases);
}

} // namespace vellumo
