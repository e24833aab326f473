#include "ui/common/focus_ring.h"

#include <QEvent>
#include <QPainter>
#include <QWidget>

namespace vellumo {
namespace {

/// Lies over the widget, which owns it.
class Ring : public QWidget
{
public:
    explicit Ring(QWidget *widget) : QWidget(widget)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
            setVisible(event->type() == QEvent::FocusIn);
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::Resize)
            resize(parentWidget()->size());
        if (event->type() == QEvent::FocusIn)
            raise();
        return QWidget::eventFilter(watched, event);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
};

} // namespace

void RingWhenFocused(QWidget *widget)
{
    new Ring(widget);
}

} // namespace vellumo
