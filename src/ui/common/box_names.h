#pragma once

namespace vellumo {

/// Lets assistive technology name combo boxes by their accessible name, where the toolkit names
/// them by the text that they show. May be called again and again; QApplication comes first.
void NameComboBoxes();

} // namespace vellumo
