#include "ui/common/screen_centre.h"

#include <QScreen>
#include <QStyle>
#include <QWidget>

namespace vellumo {

void CentreOnScreen(QWidget &window)
{
    if (!window.testAttribute(Qt::WA_Resized))
        window.adjustSize();
    const QRect screen = window.screen()->geometry();
    window.setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                           window.size().boundedTo(screen.size()), screen));
}

} // namespace vellumo
