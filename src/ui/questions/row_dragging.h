#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>

#include <functional>

class QAbstractItemView;
class QWidget;

namespace vellumo {

/// Lets the rows of a list be dragged with the left mouse button. A line shows where they would go,
/// Esc gives up, and beyond an edge the list scrolls.
class RowDragging : public QObject
{
    Q_OBJECT

public:
    /// The row that was held was let go before that of the number `gap`, and not where it is. What
    /// moves, and moving it, is the receiver's.
    using Dropped = std::function<void(int from, int gap)>;

    /// Belongs to the view, which has its model by now.
    RowDragging(QAbstractItemView *view, Dropped dropped);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool FollowMouse(QEvent *event);
    bool KeepsFromView() const;
    void DragTo(QPoint place);
    bool Release();
    void Stop();
    void Scroll();
    /// Between which rows the place is: that of this number and the one before.
    int GapAt(QPoint place) const;
    void ShowLine(int gap);

    QAbstractItemView *m_view;
    Dropped m_dropped;
    QWidget *m_line; ///< visible while a row is dragged
    QTimer m_scrolling;
    int m_from = -1; ///< the row that is held; -1 = none is
    QPoint m_pressed, m_place;
    int m_pressedRow = -1;  ///< under the mouse at the last press; -1 = none was
    bool m_givenUp = false; ///< the drag, while the button is still held
};

} // namespace vellumo
