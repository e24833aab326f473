#include "designer/help_links.h"

#include "ui/about/frmAbout.h"
#include "ui/about/myHelp.h"
#include "ui/main/appInfoForm.h"

namespace vellumo {

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
                     [&] { frmAbout(environment, &window).exec(); });
}

} // namespace vellumo
