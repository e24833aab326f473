#include "ui/main/create_database.h"

#include "palmgen/create_pass.h"
#include "ui/common/prompts.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The window does not repaint while a tool runs; the cursor says so.
ToolRun RunWithWaitCursor(const Environment &environment, const ToolCall &call)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    ToolRun run = environment.runTool(call);
    QGuiApplication::restoreOverrideCursor();
    return run;
}

} // namespace

void CreateDatabase(const Project &project, const Environment &environment, QWidget *window)
{
    CreateVellsheet(
        project,
        {.place = {.applicationFolder = environment.applicationFolder,
                   .projectsFolder = environment.projectsFolder,
                   .runTool =
                       [&](const ToolCall &call) { return RunWithWaitCursor(environment, call); },
                   .reportNotStarted =
                       [=](const QString &message) {
                           ShowBox(window, {.text = message,
                                            .icon = QMessageBox::Warning,
                                            .title = u"Error"_s});
                       }},
         .makeIdentifier = environment.makeIdentifier,
         .tellSuccess = [=](const QString &message) { ShowInformation(window, message); },
         .tellFailure = [=](const QString &message) { ShowCritical(window, message); },
         .open = environment.open});
}

} // namespace vellumo
