#pragma once

class QTabWidget;

namespace vellumo {

/// Marks the tab of a step, counted from 1, as valid or not.
void MarkTab(QTabWidget &tabs, int step, bool valid);

} // namespace vellumo
