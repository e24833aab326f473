#include "ui/common/screen_centre.h"

#include <QScreen>
#include <QWidget>

void CentreOnScreen(QWidget &window)
{
    window.ensurePolished();
    if (!window.testAttribute(Qt::WA_Resized))
        window.adjustSize();
    const QRect screen = window.screen()->geometry();
    window.resize(window.size().boundedTo(screen.size()));
    window.move(screen.center() - window.rect().center());
}
