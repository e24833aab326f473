#include "ui/main/centre.h"

#include <QScreen>
#include <QStyle>
#include <QWidget>

void CentreOnScreen(QWidget &window)
{
    window.adjustSize();
    window.setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, window.size(),
                                           window.screen()->geometry()));
}
