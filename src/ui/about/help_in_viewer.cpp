#include "ui/about/myHelp.h"

#include "platform/html_help.h"

#include <QWidget>

namespace vellumo {

myHelp::~myHelp() = default; // the viewer's windows end with the program

void myHelp::CloseWindows()
{
    CallHelpViewer(0, QString(), HH_CLOSE_ALL, 0);
}

void myHelp::Display(int command, quint32 data, QWidget *owner)
{
    CallHelpViewer(owner ? owner->effectiveWinId() : 0, m_environment.helpFile, command, data);
}

} // namespace vellumo
