#pragma once

#include <QString>

#include <optional>

namespace vellumo {

/// What the program prints on standard output in place of opening a window: for the one word --help
/// or --version. Needs no application and no display.
std::optional<QString> WordsFor(int argc, const char *const *argv);

} // namespace vellumo
