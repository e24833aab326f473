#pragma once

#include <QString>

namespace vellumo {

/// The script's lines, each with CR LF, for the controls that take the answer of a question of this
/// type. Items are the question's items joined with commas, for the two list types; an item that
/// holds a comma itself comes out as two. A name that is no type gives the line "Wrong Type".
///
/// The answer's control is number 2, a second one number 3; navigation and viewer go by that.
QString ControlLines(QStringView type, QStringView items);

} // namespace vellumo
