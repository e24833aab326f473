#include "ui/main/start_windows.h"

#include "ui/common/prompts.h"
#include "ui/main/fileOpenForm.h"
#include "ui/main/logoForm.h"
#include "ui/main/update_check.h"

#include <QDir>

namespace vellumo {

StartSurroundings StartWithWindows(const Environment &environment, const QStringList &arguments)
{
    const auto showSplash = [&environment] {
        logoForm splash(environment, [&](QWidget *parent) { CheckForUpdate(parent, environment); });
        splash.exec();
    };
    const auto showChooser = [&environment] {
        fileOpenForm chooser(environment.projectsFolder,
                             [&] { HideOpenFormNextTime(environment.applicationFolder); });
        chooser.exec();
        return chooser.Chosen();
    };
    return {.applicationFolder = environment.applicationFolder,
            .arguments = arguments,
            .makeProjectsFolder = [&environment] { QDir().mkpath(environment.projectsFolder); },
            .showSplash = showSplash,
            .readShowOpenForm =
                [&environment] { return ReadShowOpenForm(environment.applicationFolder); },
            .showChooser = showChooser,
            .tell = [](const QString &message) { ShowBox(nullptr, {.text = message}); }};
}

} // namespace vellumo
