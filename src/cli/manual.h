#pragma once

#include <QByteArray>

namespace vellumo {

// What a package brings for the headless command, made of the tables of its commands and options.

/// The page vellumo(1), in the macros "man".
QByteArray ManualPage();

// What the shells complete after "vellumo": commands, then the options of the command that is
// there, and names of files wherever one can stand.

QByteArray BashCompletion();
QByteArray ZshCompletion();
QByteArray FishCompletion();

} // namespace vellumo
