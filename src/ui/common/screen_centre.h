#pragma once

class QWidget;

namespace vellumo {

/// Moves a window that is about to be shown to the middle of its screen, which it never exceeds
/// with its frame. A window that was given a size grows with the text, as others do by themselves.
/// For once. It is looked at once more when the window manager has told how wide the frame
/// is: no title bar is above the screen.
void CentreOnScreen(QWidget &window);

} // namespace vellumo
