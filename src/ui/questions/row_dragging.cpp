#include "ui/questions/row_dragging.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {

RowDragging::RowDragging(QAbstractItemView *view, Dropped dropped)
    : QObject(view),
      m_view(view),
      m_dropped(std::move(dropped)),
      m_line(new QWidget(view->viewport()))
{
    m_line->setObjectName(u"dropLine"_s);
    m_line->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_line->setAutoFillBackground(true);
    m_line->setBackgroundRole(QPalette::Highlight);
    m_line->hide();
    m_scrolling.setInterval(50);
    connect(&m_scrolling, &QTimer::timeout, this, &RowDragging::Scroll);
    connect(view->model(), &QAbstractItemModel::modelReset, this, &RowDragging::Stop);
    view->viewport()->installEventFilter(this);
    view->installEventFilter(this);
}

bool RowDragging::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_view) // the viewport, also of a view that is half gone
        return FollowMouse(event);
    const bool isEscape = event->type() == QEvent::KeyPress &&
                          static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
    if (!isEscape || !m_line->isVisible())
        return false;
    Stop();
    m_givenUp = true;
    return true;
}

/// What is kept from the view: it would select the rows that the mouse passes.
bool RowDragging::FollowMouse(QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        Stop();
        m_givenUp = false;
        m_pressed = mouse->position().toPoint();
        m_pressedRow = m_view->indexAt(m_pressed).row();
        if (mouse->button() == Qt::LeftButton && mouse->modifiers() == Qt::NoModifier)
            m_from = m_pressedRow;
        return false;
    }
    case QEvent::MouseMove: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (m_from >= 0 && (mouse->buttons() & Qt::LeftButton))
            DragTo(mouse->position().toPoint());
        return mouse->buttons() != Qt::NoButton && (m_from >= 0 || KeepsFromView());
    }
    case QEvent::MouseButtonRelease: {
        const QPoint place = static_cast<QMouseEvent *>(event)->position().toPoint();
        const bool isElsewhere = m_view->indexAt(place).row() != m_pressedRow;
        return Release() || (isElsewhere && KeepsFromView());
    }
    default:
        return false;
    }
}

/// Whether the mouse selects nothing but the row that it was pressed on: where one row alone can be
/// selected, that is the current one, and after a drag that was given up.
bool RowDragging::KeepsFromView() const
{
    return m_givenUp || m_view->selectionMode() == QAbstractItemView::SingleSelection;
}

void RowDragging::DragTo(QPoint place)
{
    m_place = place;
    const int way = (place - m_pressed).manhattanLength();
    if (!m_line->isVisible() && way < QApplication::startDragDistance())
        return;
    ShowLine(GapAt(place));
    if (m_view->viewport()->rect().contains(place))
        m_scrolling.stop();
    else if (!m_scrolling.isActive())
        m_scrolling.start();
}

/// Whether a row was dragged: then it is no click.
bool RowDragging::Release()
{
    const bool wasDragged = m_line->isVisible();
    const int from = m_from;
    const int gap = GapAt(m_place);
    Stop();
    if (wasDragged && gap != from && gap != from + 1)
        m_dropped(from, gap);
    return wasDragged;
}

void RowDragging::Stop()
{
    m_from = -1;
    m_line->hide();
    m_scrolling.stop();
}

void RowDragging::Scroll()
{
    m_view->verticalScrollBar()->triggerAction(m_place.y() < 0 ? QScrollBar::SliderSingleStepSub
                                                               : QScrollBar::SliderSingleStepAdd);
    ShowLine(GapAt(m_place));
}

int RowDragging::GapAt(QPoint place) const
{
    const int lowest = m_view->viewport()->height() - 1;
    const QPoint within(1, std::clamp(place.y(), 0, lowest));
    const QModelIndex index = m_view->indexAt(within);
    if (!index.isValid())
        return m_view->model()->rowCount();
    return within.y() < m_view->visualRect(index).center().y() ? index.row() : index.row() + 1;
}

void RowDragging::ShowLine(int gap)
{
    constexpr int thickness = 2;
    const QAbstractItemModel *rows = m_view->model();
    const QRect next = m_view->visualRect(rows->index(gap, 0));
    const QRect before = m_view->visualRect(rows->index(gap - 1, 0));
    const int between = gap < rows->rowCount() ? next.top() : before.bottom() + 1;
    const QRect viewport = m_view->viewport()->rect();
    m_line->setGeometry(0, std::clamp(between - 1, 0, viewport.height() - thickness),
                        viewport.width(), thickness);
    m_line->show();
}

} // namespace vellumo
