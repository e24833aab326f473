#pragma once

#include "cli/command_line.h"
#include "cli/console.h"

namespace vellumo {

/// Draws the screens of some databases, and of projects whose databases are made for it, on one
/// page. Each input is tried, and the page has those that can be drawn; it is not written where
/// there is none. What is wrong with a database is complained of and stands on the page, too. The
/// worst exit is returned.
Exit DrawScreens(const CommandLine &line, const Console &console);

} // namespace vellumo
