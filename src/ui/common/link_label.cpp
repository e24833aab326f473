#include "ui/common/link_label.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace vellumo {

LinkLabel::LinkLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setForegroundRole(QPalette::Link);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
}

void LinkLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange && !font().underline()) {
        QFont underlined = font();
        underlined.setUnderline(true);
        setFont(underlined);
    }
}

void LinkLabel::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
        emit Followed();
    else
        QLabel::keyPressEvent(event);
}

void LinkLabel::mouseReleaseEvent(QMouseEvent *event)
{
    // As with a button: one that is let go elsewhere is not followed.
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit Followed();
}

void LinkLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    // A label draws no mark of the focus by itself.
    QStylePainter painter(this);
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.backgroundColor = palette().color(backgroundRole());
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

} // namespace vellumo
