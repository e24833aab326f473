#pragma once

class QWidget;

/// Gives a window that was not shown yet the size that it asks for, in the middle of its screen.
void CentreOnScreen(QWidget &window);
