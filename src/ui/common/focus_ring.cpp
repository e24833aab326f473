#include "ui/common/focus_ring.h"

#include "ui/common/contrast.h"

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
        const QColor base = palette().color(QPalette::Base),
                     page = palette().color(QPalette::Window);
        const QColor ink =
            Legible(palette().color(QPalette::Highlight), {base, page}, pictureContrast);
        painter.setPen(QPen(ink, 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
};

/// The toolkit forgets the wish whenever the window is shown.
class FocusWish : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *window, QEvent *event) override
    {
        if (event->type() == QEvent::Show)
            static_cast<QWidget *>(window)->setAttribute(Qt::WA_KeyboardFocusChange);
        return false;
    }
};

} // namespace

void RingWhenFocused(QWidget *widget)
{
    new Ring(widget);
}

void ShowFocusAlways(QWidget &window)
{
    window.installEventFilter(new FocusWish(&window));
}

} // namespace vellumo
