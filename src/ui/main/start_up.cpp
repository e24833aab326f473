#include "ui/main/start_up.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QString PathOf(const QString &commandLine, const QString &applicationFolder)
{
    if (commandLine.contains(QDir::separator()))
        return commandLine;
    return applicationFolder + QDir::separator() + commandLine;
}

Start ChooseProject(const StartSurroundings &surroundings)
{
    const ShowOpenForm setting = surroundings.readShowOpenForm();
    if (!setting.message.isEmpty())
        surroundings.tell(setting.message);
    if (setting.value != 1)
        return {};
    const Start chosen = surroundings.showChooser();
    if (chosen.choice == newProject || chosen.path.isEmpty())
        return {};
    return chosen;
}

} // namespace

Start StartUp(const StartSurroundings &surroundings)
{
    surroundings.makeProjectsFolder();
    const QString commandLine = surroundings.arguments.join(u' ');
    if (!commandLine.isEmpty())
        return {existingProject, PathOf(commandLine, surroundings.applicationFolder)};
    surroundings.showSplash();
    return ChooseProject(surroundings);
}

} // namespace vellumo
