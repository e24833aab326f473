#pragma once

#include <QString>

namespace vellumo {

/// The lines, each with CR LF, that follow the NAVIGATION line of a question's form: the order in
/// which the handheld's five-way navigation goes through the controls. Types whose form has a
/// control number 3 pass through it; every other name gives the order without it.
QString NavigationBody(QStringView type);

} // namespace vellumo
