#include "ui/common/scroll_page.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>

namespace vellumo {

int ScrollContent::heightForWidth(int width) const
{
    return layout()->minimumHeightForWidth(width);
}

void SettleLayouts(QWidget &widget)
{
    QList<QWidget *> within{&widget};
    within += widget.findChildren<QWidget *>();
    for (const QWidget *each : within)
        each->ensurePolished(); // boxes keep the size that they tell, as of before it
    std::for_each(within.rbegin(), within.rend(), [](QWidget *each) { // those within others first
        if (QLayout *layout = each->layout()) {
            layout->invalidate();
            layout->activate();
        }
    });
}

ScrollPage::ScrollPage(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    viewport()->setAutoFillBackground(false);
    // Also where the program moves the focus: the area itself follows Tab alone.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        m_leftByUser = false;
        BringIntoView(now);
    });
    for (const QScrollBar *bar : {horizontalScrollBar(), verticalScrollBar()})
        connect(bar, &QScrollBar::actionTriggered, this, [this] { m_leftByUser = true; });
}

/// What has the focus in it loses that when it goes.
ScrollPage::~ScrollPage()
{
    disconnect(qApp, nullptr, this, nullptr);
}

QSize ScrollPage::sizeHint() const
{
    if (!widget())
        return QScrollArea::sizeHint();
    // Of texts that wrap it has not the height that they need in its width.
    const QSize hint = widget()->sizeHint();
    return hint.expandedTo({0, widget()->heightForWidth(hint.width())});
}

QSize ScrollPage::minimumSizeHint() const
{
    return QSize(2, 1) * fontMetrics().lineSpacing();
}

bool ScrollPage::eventFilter(QObject *watched, QEvent *event)
{
    // A content of another size is asked for another size of the window.
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    const bool handled = QScrollArea::eventFilter(watched, event);
    if (watched == widget() &&
        (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize))
        KeepInView();
    return handled;
}

void ScrollPage::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    KeepInView();
}

void ScrollPage::showEvent(QShowEvent *event)
{
    QScrollArea::showEvent(event);
    if (!widget())
        return;
    widget()->setAutoFillBackground(false); // which the area has turned on
    Settle();
}

void ScrollPage::Settle()
{
    SettleLayouts(*widget());
    // A scroll bar of before makes texts narrower and so higher, by which it would stay.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    QEvent bars(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(this, &bars);
}

/// The area's own way ends with another look at the focus, which shows the middle of what is wide.
bool ScrollPage::focusNextPrevChild(bool next)
{
    return QWidget::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call)
}

/// What got the focus before the page had its height, too; but where the user scrolls to is the
/// user's choice.
void ScrollPage::KeepInView()
{
    const QWidget *focus = QApplication::focusWidget();
    if (focus && widget() && widget()->isAncestorOf(focus) && !m_leftByUser)
        BringDown(*focus);
}

void ScrollPage::BringIntoView(const QWidget *focus)
{
    if (!focus || !widget() || !widget()->isAncestorOf(focus))
        return;
    BringAcross(*focus);
    BringDown(*focus);
}

void ScrollPage::BringAcross(const QWidget &focus)
{
    QScrollBar *bar = horizontalScrollBar();
    const int before = bar->value(), room = viewport()->width();
    ensureWidgetVisible(const_cast<QWidget *>(&focus));

    QRect place = focus.rect();
    if (place.width() > room && focus.testAttribute(Qt::WA_InputMethodEnabled)) // typed into
        place = focus.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    place.translate(focus.mapTo(widget(), QPoint()));
    place = QStyle::visualRect(widget()->layoutDirection(), widget()->rect(), place);
    const bool isAhead = place.left() < before || place.width() > room;
    const int ending = place.left() + place.width() - room;
    bar->setValue(isAhead ? place.left() : std::max(before, ending));
}

/// Page by page from within: where the focus lies on the outer one depends on the inner one.
void ScrollPage::BringDown(const QWidget &focus)
{
    verticalScrollBar()->setValue(ValueFor(focus));
    for (QWidget *above = parentWidget(); above; above = above->parentWidget())
        if (auto *outer = qobject_cast<ScrollPage *>(above))
            return outer->BringDown(focus);
}

/// All of it; of what is higher than the room the beginning, unless its cursor or current row is
/// below.
int ScrollPage::ValueFor(const QWidget &focus) const
{
    const int room = viewport()->height(), top = focus.mapTo(widget(), QPoint()).y();
    if (focus.height() <= room)
        return std::clamp(verticalScrollBar()->value(), top + focus.height() - room, top);
    QRect current = focus.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    if (const auto *area = qobject_cast<const QAbstractScrollArea *>(&focus))
        current.translate(area->viewport()->pos());
    const int below = current.height() < room ? current.bottom() + 1 - room : 0;
    return top + std::max(below, 0);
}

} // namespace vellumo
