#include "ui/main/start_up.h"

#include "model/basRegistry.h"
#include "model/project_file.h"
#include "ui/common/prompts.h"
#include "ui/main/fileOpenForm.h"
#include "ui/main/logoForm.h"
#include "ui/main/update_check.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

void ShowSplash(const Environment &environment)
{
    logoForm(environment, [&](QWidget *parent) { CheckForUpdate(parent, environment); }).exec();
}

Start AskForProject(const Environment &environment, const std::function<void()> &showHelp)
{
    fileOpenForm chooser(environment.projectsFolder,
                         [&] { HideOpenFormNextTime(environment.FolderToWriteIn()); });
    if (showHelp)
        QObject::connect(&chooser, &fileOpenForm::HelpAsked, &chooser, showHelp);
    chooser.exec();
    const Start chosen = chooser.Chosen();
    return chosen.choice == newProject || chosen.path.isEmpty() ? Start() : chosen;
}

/// For who takes the current folder for the one where a bare name is looked for.
QString HintAbout(const QString &name, const QString &path)
{
    if (name == path || QFileInfo(path).isFile() || !QFileInfo(name).isFile())
        return {};
    return u"There is one in the current folder: to open it, write .%1%2."_s.arg(QDir::separator(),
                                                                                 name);
}

} // namespace

QString ProjectOfCommandLine(const QStringList &arguments, const QString &applicationFolder)
{
    QString commandLine = arguments.join(u' ');
    if (commandLine.isEmpty() || commandLine.contains(QDir::separator()))
        return commandLine;
    return applicationFolder + QDir::separator() + commandLine;
}

Start StartUp(const Environment &environment, const QStringList &arguments, const Outcome &typed,
              const std::function<void()> &showHelp)
{
    QDir().mkpath(environment.projectsFolder);
    if (!typed) {
        ShowCritical(nullptr, invalidProjectFile, typed.error());
        return {};
    }
    const QString named = ProjectOfCommandLine(arguments, environment.applicationFolder);
    if (!named.isEmpty())
        return {existingProject, named, HintAbout(arguments.join(u' '), named)};

    ShowSplash(environment);
    const ShowOpenForm setting = ReadShowOpenForm(environment.FolderToWriteIn());
    if (!setting.message.isEmpty())
        ShowBox(nullptr, {.text = setting.message, .informative = setting.file});
    return setting.value == 1 ? AskForProject(environment, showHelp) : Start();
}

} // namespace vellumo
