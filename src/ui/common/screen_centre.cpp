#include "ui/common/screen_centre.h"

#include "ui/common/desktop_manners.h"
#include "ui/common/scroll_page.h"

#include <QEvent>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace vellumo {
namespace {

/// Null as long as nobody has told.
QMargins KnownFrame(const QWidget &window)
{
    const QWindow *handle = window.windowHandle();
    return handle ? handle->frameMargins() : QMargins();
}

QMargins LikelyFrame(const QWidget &window)
{
    if (window.windowFlags() & Qt::FramelessWindowHint)
        return {};
    return {0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight), 0, 0};
}

QMargins Frame(const QWidget &window)
{
    const QMargins known = KnownFrame(window);
    return known.isNull() ? LikelyFrame(window) : known;
}

/// In the middle of the screen, but clear of the desktop's panels.
void Place(QWidget &window, const QMargins &frame)
{
    const QRect room = window.screen()->availableGeometry();
    const QSize size = window.size().boundedTo(room.marginsRemoved(frame).size());
    QRect place =
        QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, window.screen()->geometry())
            .marginsAdded(frame);
    place.moveBottomRight(
        {std::min(place.right(), room.right()), std::min(place.bottom(), room.bottom())});
    place.moveTopLeft({std::max(place.left(), room.left()), std::max(place.top(), room.top())});
    window.setGeometry(place.marginsRemoved(frame));
}

/// With the scroll bar of a window that is higher than its screen.
QSize Wanted(const QWidget &window)
{
    const QSize hint = window.sizeHint();
    const bool scrolls = hint.height() > window.screen()->availableSize().height();
    return hint + QSize(scrolls ? window.style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0, 0);
}

/// Waits for a window's frame, for once: where the user moves it later is the user's choice. Not
/// every window manager makes an event of having told, so the frame is asked for again and again.
class FrameWatch : public QObject
{
public:
    explicit FrameWatch(QWidget &window) : QObject(&window), m_window(window)
    {
        window.installEventFilter(this);
        connect(&m_again, &QTimer::timeout, this, &FrameWatch::Look);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        constexpr std::chrono::milliseconds pause(50);
        if (event->type() == QEvent::Show)
            m_again.start(pause);
        if (event->type() == QEvent::Show || event->type() == QEvent::Move ||
            event->type() == QEvent::Resize)
            QTimer::singleShot(0, this, &FrameWatch::Look); // when the event has been handled
        return QObject::eventFilter(watched, event);
    }

private:
    void Look()
    {
        constexpr int mostLooks = 100; // where windows have no frames
        const QMargins frame = KnownFrame(m_window);
        if (frame.isNull() || !m_window.isVisible())
            return ++m_looks < mostLooks ? void() : m_again.stop();
        m_window.removeEventFilter(this);
        deleteLater();
        if (!m_window.screen()->availableGeometry().contains(m_window.frameGeometry()))
            Place(m_window, frame);
    }

    QWidget &m_window;
    QTimer m_again;
    int m_looks = 0;
};

} // namespace

void CentreOnScreen(QWidget &window)
{
    SettleLayouts(window);
    // A window that is not shown yet has no size of its own unless it was given one, for usual
    // text.
    window.resize(window.testAttribute(Qt::WA_Resized) ? window.size() * TextGrowth(window)
                                                       : Wanted(window));
    Place(window, Frame(window));
    KeepOnScreen(window);
}

void KeepOnScreen(QWidget &window)
{
    new FrameWatch(window);
}

QSize RoomOnScreen(const QWidget &window)
{
    return window.screen()->availableGeometry().marginsRemoved(Frame(window)).size();
}

} // namespace vellumo
