#pragma once

namespace vellumo {

/// Keeps what the toolkit has to say about its own workings from standard error, unless somebody
/// asks for it by QT_LOGGING_RULES or QT_DEBUG_PLUGINS. Where the toolkit cannot go on, the program
/// says why in a line of its own and ends with status 1: too many open files, or else the reason.
/// Whether so many file descriptors can be opened is looked at now, since what the toolkit stands
/// on would end the program in other words. Belongs before the application object; both texts must
/// stay.
void KeepToolkitQuiet(const char *program, const char *reason, int neededDescriptors);

} // namespace vellumo
