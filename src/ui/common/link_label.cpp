#include "ui/common/link_label.h"

#include "ui/common/contrast.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace vellumo {
namespace {

class AccessibleLink : public QAccessibleWidget
{
public:
    explicit AccessibleLink(LinkLabel *link) : QAccessibleWidget(link, QAccessible::Link) {}

    QString text(QAccessible::Text which) const override
    {
        const QString own = QAccessibleWidget::text(which);
        const bool unnamed = which == QAccessible::Name && own.isEmpty();
        return unnamed ? static_cast<LinkLabel *>(widget())->text() : own;
    }

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }

    void doAction(const QString &name) override
    {
        if (name == pressAction())
            emit static_cast<LinkLabel *>(widget())->Followed();
        else
            QAccessibleWidget::doAction(name);
    }
};

QAccessibleInterface *MakeLink(const QString &className, QObject *object)
{
    const bool isLink = className == QLatin1StringView(LinkLabel::staticMetaObject.className());
    return isLink ? new AccessibleLink(static_cast<LinkLabel *>(object)) : nullptr;
}

} // namespace

LinkLabel::LinkLabel(QWidget *parent) : QLabel(parent)
{
    QAccessible::installFactory(MakeLink); // which takes each but once
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setForegroundRole(QPalette::Link);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
}

QColor LinkLabel::Ink() const
{
    // Windows have one ground, the pages of tabs that of buttons, or one that is a bit lighter.
    constexpr int lighter = 128; // percent
    const QColor window = palette().color(QPalette::Window);
    const QColor button = palette().color(QPalette::Button);
    const QColor link = palette().color(QPalette::Link);
    const QColor onBoth = Legible(link, {window, button, button.lighter(lighter)}, textContrast);
    if (Contrast(onBoth, window) >= textContrast)
        return onBoth;
    return Legible(link, {window}, textContrast);
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

void LinkLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QPalette inked = palette();
    inked.setColor(QPalette::Link, Ink());
    style()->drawItemText(
        &painter, contentsRect(),
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())) |
            (text().isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight),
        inked, isEnabled(), text(), QPalette::Link);
    if (!hasFocus())
        return;
    // A label draws no mark of the focus by itself, and some styles draw one after a key alone.
    painter.setPen(QPen(inked.color(QPalette::Link), 1, Qt::DashLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace vellumo
