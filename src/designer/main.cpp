#include "designer/help_links.h"
#include "designer/orderly_end.h"
#include "designer/real_environment.h"
#include "designer/told_words.h"
#include "platform/arguments.h"
#include "platform/toolkit_words.h"
#include "ui/about/myHelp.h"
#include "ui/common/pictures.h"
#include "ui/main/appInfoForm.h"
#include "ui/main/start_up.h"

#include <QApplication>

#include <cstdio>

using namespace vellumo;

int main(int argc, char *argv[])
{
    if (const auto words = WordsFor(argc, argv)) {
        const bool told = std::fputs(qPrintable(*words), stdout) >= 0 && std::fflush(stdout) == 0;
        return told ? 0 : 1;
    }
    KeepToolkitQuiet("vellumo-designer", "No window can be opened here: is there a display?", 32);
    QApplication application(argc, argv);
    QApplication::setWindowIcon(ProgramIcon());

    appInfoForm *shown = nullptr;
    const SignalWatch watch(BrokenPipe::IsAnError, EndInEventLoop([&shown] {
                                if (shown)
                                    shown->WriteRescueCopy();
                            }));

    const Environment environment = RealEnvironment();
    myHelp help(environment);
    const Start start =
        StartUp(environment, QApplication::arguments().mid(1), CheckArguments(argc, argv),
                [&help] { help.ShowHelp(HH_DISPLAY_TOPIC, 0, nullptr); });

    appInfoForm window(environment);
    ConnectHelp(window, help, environment);
    if (start.choice == existingProject)
        window.OpenProject(start.path, start.hint);
    window.FinishSetUp();
    window.show();
    shown = &window;
    QMetaObject::invokeMethod(&window, &appInfoForm::OfferRescue, Qt::QueuedConnection);
    return QApplication::exec();
}
