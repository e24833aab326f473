#include "ui/common/desktop_manners.h"

#include "ui/common/focus_ring.h"

#include <QAbstractButton>
#include <QEvent>
#include <QFontInfo>
#include <QLabel>
#include <QTabWidget>

#include <algorithm>

namespace vellumo {
namespace {

/// Keeps the icons of a widget in proportion to its text; never smaller than they are by
/// themselves.
template <typename Widget> class IconSize : public QObject
{
public:
    explicit IconSize(Widget *widget)
        : QObject(widget), m_widget(widget), m_ownSize(widget->iconSize())
    {
        widget->installEventFilter(this);
        Follow();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FontChange)
            Follow();
        return QObject::eventFilter(watched, event);
    }

private:
    void Follow()
    {
        constexpr qreal usualText = 12; // pixels
        const qreal factor = QFontInfo(m_widget->font()).pixelSize() / usualText;
        m_widget->setIconSize(m_ownSize * std::max(1.0, factor));
    }

    Widget *m_widget;
    QSize m_ownSize;
};

/// A label goes by the direction of its words, which in a mirrored window need not be the window's.
void PutAtBeginning(QLabel &label)
{
    const Qt::Alignment across = label.alignment() & Qt::AlignHorizontal_Mask;
    if (label.isRightToLeft() && !(across & (Qt::AlignHCenter | Qt::AlignRight)))
        label.setAlignment((label.alignment() & Qt::AlignVertical_Mask) | Qt::AlignRight |
                           Qt::AlignAbsolute);
}

} // namespace

void FollowDesktop(QWidget &window)
{
    ShowFocusAlways(window);
    for (auto *button : window.findChildren<QAbstractButton *>())
        new IconSize(button);
    for (auto *tabs : window.findChildren<QTabWidget *>())
        new IconSize(tabs);
    for (auto *label : window.findChildren<QLabel *>())
        PutAtBeginning(*label);
}

} // namespace vellumo
