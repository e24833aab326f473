#include "ui/common/screen_centre.h"

#include <QScreen>
#include <QStyle>
#include <QWidget>

namespace vellumo {

void CentreOnScreen(QWidget &window)
{
    // A window that is not shown yet has no size of its own unless it was given one.
    if (!window.testAttribute(Qt::WA_Resized))
        window.adjustSize();
    const QRect screen = window.screen()->geometry();
    window.setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                           window.size().boundedTo(screen.size()), screen));
}

} // namespace vellumo
