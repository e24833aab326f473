#include "ui/about/myHelp.h"

#include "ui/common/prompts.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QWidget *OwnerFor(QWidget *asker)
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    return asker ? asker->window() : nullptr;
}

} // namespace

void myHelp::ShowHelp(int command, quint32 data, QWidget *asker)
{
    QWidget *owner = OwnerFor(asker);
    if (m_environment.helpFile.isEmpty())
        return ShowInformation(owner, u"Help File Not Found!"_s);
    Display(command, data, owner);
}

} // namespace vellumo
