#pragma once

#include <QSize>

class QWidget;

namespace vellumo {

/// Moves a window that is about to be shown to the middle of its screen, which it never exceeds
/// with its frame. A window that was given a size grows with the text, as others do by themselves.
/// For once; then as KeepOnScreen: no title bar is above the screen.
void CentreOnScreen(QWidget &window);

/// Looks at a window that has its place once the window manager has told how wide its frame is, and
/// moves it where that is not on the screen.
void KeepOnScreen(QWidget &window);

/// How large a window can be, within its frame, on the screen that it is on. The frame is guessed
/// as long as the window manager has not told it.
QSize RoomOnScreen(const QWidget &window);

} // namespace vellumo
