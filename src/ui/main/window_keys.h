#pragma once

#include <QKeySequence>
#include <QList>

class QTabWidget;
class QWidget;

namespace vellumo {

/// The keys that the platform has for a command, or else the given one: some platforms have none
/// for saving under another name and for leaving.
QList<QKeySequence> KeysOf(QKeySequence::StandardKey standard, const QKeySequence &other);

/// Ctrl+Tab and Ctrl+Page Down lead to the next tab, with Shift and Page Up to the previous one,
/// round about, wherever in the window the focus is.
void WalkTabsByKeys(QTabWidget &tabs);

/// Enter presses the button that has the focus, of those that the window has by now.
void PressButtonsByEnter(QWidget &window);

} // namespace vellumo
