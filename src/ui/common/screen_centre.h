#pragma once

class QWidget;

namespace vellumo {

/// Moves a window that is not shown yet to the middle of its screen, which it never exceeds.
void CentreOnScreen(QWidget &window);

} // namespace vellumo
