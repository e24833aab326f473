#include "ui/common/desktop_manners.h"

#include "ui/common/focus_ring.h"

#include <QAbstractButton>
#include <QEvent>
#include <QFontInfo>
#include <QLabel>
#include <QMenu>
#include <QProxyStyle>
#include <QPushButton>
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
    void Follow() { m_widget->setIconSize(m_ownSize * TextGrowth(*m_widget)); }

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

/// Takes the sides of texts as they are told: the usual style mirrors a caption beside a picture,
/// which is mirrored again when it is drawn and ends at the border.
class MirroredOnce : public QProxyStyle
{
public:
    void drawItemText(QPainter *painter, const QRect &place, int flags, const QPalette &palette,
                      bool isEnabled, const QString &text, QPalette::ColorRole role) const override
    {
        QProxyStyle::drawItemText(painter, place, flags | Qt::AlignAbsolute, palette, isEnabled,
                                  text, role);
    }
};

void KeepCaptionsByPictures(QWidget &window)
{
    auto *style = new MirroredOnce;
    style->setParent(&window);
    for (auto *button : window.findChildren<QPushButton *>())
        button->setStyle(style);
}

/// Styles put a mark before an entry that grows with the text, but leave room for one that does
/// not, and cut the longest entry short.
void LeaveRoomForMarks(QMenu &menu)
{
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&menu] {
        menu.setMinimumWidth(0);
        const qreal grown = menu.fontMetrics().height() * (1 - 1 / TextGrowth(menu));
        menu.setMinimumWidth(menu.sizeHint().width() + qRound(grown));
    });
}

} // namespace

qreal TextGrowth(const QWidget &widget)
{
    constexpr qreal usual = 12; // pixels
    return std::max(1.0, QFontInfo(widget.font()).pixelSize() / usual);
}

void FollowDesktop(QWidget &window)
{
    ShowFocusAlways(window);
    for (auto *button : window.findChildren<QAbstractButton *>())
        new IconSize(button);
    if (window.isRightToLeft())
        KeepCaptionsByPictures(window);
    for (auto *tabs : window.findChildren<QTabWidget *>())
        new IconSize(tabs);
    for (auto *menu : window.findChildren<QMenu *>())
        LeaveRoomForMarks(*menu);
    for (auto *label : window.findChildren<QLabel *>())
        PutAtBeginning(*label);
}

} // namespace vellumo
