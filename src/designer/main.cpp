#include "designer/help_links.h"
#include "designer/real_environment.h"
#include "platform/arguments.h"
#include "ui/about/myHelp.h"
#include "ui/common/pictures.h"
#include "ui/main/appInfoForm.h"
#include "ui/main/start_up.h"

#include <QApplication>

using namespace vellumo;

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setWindowIcon(ProgramIcon());

    const Environment environment = RealEnvironment();
    const Start start =
        StartUp(environment, QApplication::arguments().mid(1), CheckArguments(argc, argv));

    myHelp help(environment);
    appInfoForm window(environment);
    ConnectHelp(window, help, environment);
    if (start.choice == existingProject)
        window.OpenProject(start.path);
    window.FinishSetUp();
    window.show();
    return QApplication::exec();
}
