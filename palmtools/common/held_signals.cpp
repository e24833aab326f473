#include "palmtools/common/held_signals.h"

namespace palmtools {

#ifdef _WIN32

HeldSignals::HeldSignals() = default;
HeldSignals::~HeldSignals() = default;

bool HeldSignals::OneWaits() const
{
    return false;
}

#else

namespace {

constexpr int endingSignals[] = {SIGHUP, SIGINT, SIGQUIT, SIGPIPE, SIGALRM, SIGTERM, SIGXCPU};

/// One that is ignored must not be held: it would wait, and seem to end the program.
bool IsIgnored(int signal)
{
    struct sigaction action = {};
    return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

} // namespace

HeldSignals::HeldSignals()
{
    sigemptyset(&m_held);
    for (const int signal : endingSignals) {
        if (!IsIgnored(signal))
            sigaddset(&m_held, signal);
    }
    pthread_sigmask(SIG_BLOCK, &m_held, &m_before);
}

HeldSignals::~HeldSignals()
{
    pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

bool HeldSignals::OneWaits() const
{
    sigset_t waiting;
    sigpending(&waiting);
    for (const int signal : endingSignals) {
        if (sigismember(&m_held, signal) == 1 && sigismember(&waiting, signal) == 1)
            return true;
    }
    return false;
}

#endif

} // namespace palmtools
