#pragma once

class QWidget;

namespace vellumo {

/// Has a window that is set up behave as its desktop wants: the focus is shown from the start,
/// icons grow with the text beside them, menus have room for their entries, and labels stand at the
/// side where lines begin, whatever the direction of their own words.
void FollowDesktop(QWidget &window);

} // namespace vellumo
