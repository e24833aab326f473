#include "ui/main/step_mark.h"

#include "ui/common/pictures.h"

#include <QTabBar>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace vellumo {

void MarkTab(QTabWidget &tabs, int step, bool valid)
{
    const int tab = step - 1;
    const int picture = valid ? StepMarkValid : StepMarkInvalid;
    tabs.setTabIcon(tab, Picture(picture));
    tabs.tabBar()->setTabData(tab, picture);
    // The mark is a picture, which a screen reader does not read.
    tabs.tabBar()->setAccessibleTabName(tab, tabs.tabText(tab) +
                                                 (valid ? u", valid"_s : u", not valid yet"_s));
}

} // namespace vellumo
