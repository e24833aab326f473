#include "ui/common/heading.h"

#include <QApplication>
#include <QEvent>
#include <QFontInfo>

namespace vellumo {

Heading::Heading(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    FollowText();
}

bool Heading::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange)
        FollowText();
    return QLabel::event(event);
}

void Heading::FollowText()
{
    constexpr qreal larger = 5;
    QFont font = QApplication::font(this);
    font.setPointSizeF(QFontInfo(font).pointSizeF() + larger);
    font.setBold(true);
    setFont(font);
}

} // namespace vellumo
