#pragma once

#include "ui/common/environment.h"

#include <chrono>

class QWidget;

namespace vellumo {

/// How long the start waits for the maker's web site at most.
inline constexpr std::chrono::milliseconds updateTimeOut{4000};

/// Asks the maker's web site for its version log and offers the download page if that is newer;
/// nothing else is ever shown. Returns when the site has answered, or the time is over, and the
/// user has. Events are handled meanwhile. The parent of the box may be null.
void CheckForUpdate(QWidget *parent, const Environment &environment,
                    std::chrono::milliseconds timeOut = updateTimeOut);

} // namespace vellumo
