#pragma once

#include "platform/signals.h"

namespace vellumo {

/// What a program with windows does by a signal: it runs the function in its event loop, between
/// two events, and then ends. One that does not come to it within five seconds ends all the same.
SignalWatch::End EndInEventLoop(std::function<void()> first);

} // namespace vellumo
