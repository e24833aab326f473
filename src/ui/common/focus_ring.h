#pragma once

class QWidget;

namespace vellumo {

/// Draws a line around a list or page while it has the focus, which otherwise shows by its current
/// entry alone: one that is empty would not show it.
void RingWhenFocused(QWidget *widget);

} // namespace vellumo
