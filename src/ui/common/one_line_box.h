#pragma once

class QLineEdit;

namespace vellumo {

/// Has a box of one line take what is pasted or dropped into it as one line: its line breaks and
/// tabs become blanks, a line break at the end goes. The box of an editable drop-down, too.
void KeepToOneLine(QLineEdit *box);

} // namespace vellumo
