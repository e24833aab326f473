#pragma once

#include <QtGlobal>

class QWidget;

namespace vellumo {

/// How many times as large as usual the text of a widget is, 1 at least.
qreal TextGrowth(const QWidget &widget);

/// Has a window that is set up behave as its desktop wants: the focus is shown from the start,
/// icons grow with the text beside them, menus have room for their entries, captions stay beside
/// their pictures, and labels stand at the side where lines begin, whatever the direction of their
/// words.
void FollowDesktop(QWidget &window);

} // namespace vellumo
