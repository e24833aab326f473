#pragma once

#include <functional>

class QWidget;

namespace vellumo {

/// F1 calls the function wherever in the window the focus is, and in a box that is up over it.
void ShowHelpByKey(QWidget &window, std::function<void()> show);

/// What F1 does in the window that the widget lies in, or else in the next one below that has help.
/// The widget may be null.
void PressHelpKeyBelow(const QWidget *widget);

} // namespace vellumo
