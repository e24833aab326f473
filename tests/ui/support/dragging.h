#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QMouseEvent>
#include <QTest>

namespace vellumo {

/// Moves the mouse with the left button held.
inline void MoveMouse(QWidget *widget, QPoint place)
{
    QMouseEvent move(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

/// A row of a list that is dragged: pressed, and held between the row of a number and the one
/// before.
class Dragging
{
public:
    Dragging(const QAbstractItemView *view, int row, int gap)
        : m_view(view), m_place(view->visualRect(view->model()->index(row, 0)).center())
    {
        QTest::mousePress(view->viewport(), Qt::LeftButton, {}, m_place);
        const int rows = view->model()->rowCount();
        const QRect next = view->visualRect(view->model()->index(std::min(gap, rows - 1), 0));
        const QPoint place(m_place.x(), gap < rows ? next.top() + 1 : next.bottom());
        MoveMouse(view->viewport(), m_place + QPoint(40, 0));
        m_place = place;
        MoveMouse(view->viewport(), m_place);
    }

    bool ShowsLine() const
    {
        return m_view->findChild<QWidget *>(QStringLiteral("dropLine"))->isVisible();
    }
    void LetGo() const { QTest::mouseRelease(m_view->viewport(), Qt::LeftButton, {}, m_place); }

private:
    const QAbstractItemView *m_view;
    QPoint m_place;
};

} // namespace vellumo
