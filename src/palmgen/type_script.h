#pragma once

#include <QString>

namespace vellumo {

// What the script says of the form of a question by its type. The answer's control is number 2, a
// second one number 3; navigation and viewer go by that.

/// The lines, each with CR LF, for the controls that take the answer of a question of the type of
/// this name. Items are the question's items joined with commas, for the types that own items; an
/// item that holds a comma itself comes out as two. A name that is no type gives the line "Wrong
/// Type".
QString ControlLines(QStringView type, QStringView items);

/// The lines, each with CR LF, that follow the NAVIGATION line of a question's form: the order in
/// which the handheld's five-way navigation goes through the controls. Types whose form has a
/// control number 3 to be operated pass through it; every other name gives the order without it.
QString NavigationBody(QStringView type);

} // namespace vellumo
