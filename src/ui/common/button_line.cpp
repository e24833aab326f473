#include "ui/common/button_line.h"

#include <QAbstractButton>
#include <QEvent>
#include <QFontInfo>
#include <QLayout>

namespace vellumo {

bool ButtonLine::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    switch (event->type()) {
    case QEvent::Show:
        window()->installEventFilter(this); // which takes it but once
        Fit();
        break;
    case QEvent::Resize:
    case QEvent::FontChange:
        Fit();
        break;
    default:
        break;
    }
    return handled;
}

bool ButtonLine::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == window() && event->type() == QEvent::Resize)
        Fit();
    return QWidget::eventFilter(watched, event);
}

void ButtonLine::Fit()
{
    if (!isVisible())
        return;
    const int room = window()->height() * 2 / 5;
    ShrinkText(*this, findChildren<QAbstractButton *>(), [this, room] {
        layout()->invalidate();
        return layout()->heightForWidth(width()) <= room;
    });
    updateGeometry();
}

void ShrinkText(const QWidget &line, const QList<QAbstractButton *> &buttons,
                const std::function<bool()> &fits)
{
    constexpr int smallest = 6; // points
    QFont text;                 // that of the line
    for (int points = QFontInfo(line.font()).pointSize();; text.setPointSize(--points)) {
        for (QAbstractButton *button : buttons)
            button->setFont(text);
        if (fits() || points <= smallest)
            return;
    }
}

} // namespace vellumo
