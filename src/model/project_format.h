#pragma once

#include "platform/files.h"

#include <array>

namespace vellumo {

// What reading and writing a project file have in common; docs/project-file.md tells the whole.

/// Four times the file of 128 questions with 255 items each and all texts of the largest length.
inline constexpr FileLimit projectLimit = {16LL * 1024 * 1024, QLatin1StringView("project")};

/// The company tags of files that are projects. The first one is written.
inline constexpr std::array companyTags = {QLatin1StringView("Brindlecot Data Collect"),
                                           QLatin1StringView("Harlo Data Collect")};

} // namespace vellumo
