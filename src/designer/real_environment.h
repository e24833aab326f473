#pragma once

#include "ui/common/environment.h"

namespace vellumo {

/// The environment of a program that a person started: its own folder, the user's documents, the
/// maker's site.
Environment RealEnvironment();

} // namespace vellumo
