#include "designer/help_links.h"

#include "ui/about/frmAbout.h"
#include "ui/about/myHelp.h"
#include "ui/main/appInfoForm.h"

namespace vellumo {
namespace {

void ShowAbout(appInfoForm &window, myHelp &help, const Environment &environment)
{
    frmAbout about(environment, &window);
    QObject::connect(&about, &frmAbout::HelpAsked, &about,
                     [&] { help.ShowHelp(HH_DISPLAY_TOPIC, 0, &about); });
    about.exec();
}

} // namespace

void ConnectHelp(appInfoForm &window, myHelp &help, const Environment &environment)
{
    QObject::connect(&window, &appInfoForm::HelpAsked, &window, [&](quint32 contextId) {
        help.ShowHelp(HH_HELP_CONTEXT, contextId, &window);
    });
    QObject::connect(&window, &appInfoForm::ContentsAsked, &window,
                     [&] { help.ShowHelp(HH_DISPLAY_TOPIC, 0, &window); });
    QObject::connect(&window, &appInfoForm::HelpCloseAsked, &window,
                     [&] { help.ShowHelp(HH_CLOSE_ALL, 0, &window); });
    QObject::connect(&window, &appInfoForm::AboutAsked, &window,
                     [&] { ShowAbout(window, help, environment); });
}

} // namespace vellumo
