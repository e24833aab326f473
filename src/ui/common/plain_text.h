#pragma once

#include <QString>

class QPlainTextEdit;

namespace vellumo {

/// The text of the box to the last character, with '\n' between lines. The box's own reading turns
/// no-break spaces into blanks.
QString TextOf(const QPlainTextEdit &box);

} // namespace vellumo
