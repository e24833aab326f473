#pragma once

#ifndef _WIN32
#include <csignal>
#endif

namespace palmtools {

/// Lets the signals that end a program wait as long as this lives, so that nothing is left behind
/// when one arrives. What the program does with them stays as it is; it does it at the end of this.
///
/// Holds for the calling thread. A signal that the program ignores is not held.
class HeldSignals
{
public:
    HeldSignals();
    HeldSignals(const HeldSignals &) = delete;
    HeldSignals &operator=(const HeldSignals &) = delete;
    ~HeldSignals();

    /// Whether one of them waits.
    bool OneWaits() const;

#ifndef _WIN32
private:
    sigset_t m_held, m_before;
#endif
};

} // namespace palmtools
