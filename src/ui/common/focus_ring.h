#pragma once

class QWidget;

namespace vellumo {

/// Draws a line around a list, page or box of several lines while it has the focus, which otherwise
/// shows by its current entry or caret alone: one that is empty would not show it. The line is in
/// the palette's highlight, lighter or darker where that would not be seen.
void RingWhenFocused(QWidget *widget);

/// Lets every control of a window show the focus from the start. Styles do so of their own accord
/// only after Tab, but the keys act upon what has it before.
void ShowFocusAlways(QWidget &window);

} // namespace vellumo
