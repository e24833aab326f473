#include "platform/signals.h"

#include "platform/undoable.h"

#include <QtGlobal>

#include <cerrno>
#include <csignal>
#include <cstdlib>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace vellumo {

#ifdef Q_OS_UNIX

namespace {

int wakePipe[2] = {-1, -1}; ///< carries the numbers of signals to the watch's thread; stays open

/// All that may be done within a signal.
void Wake(int signal)
{
    const int before = errno;
    const char number = static_cast<char>(signal);
    [[maybe_unused]] const auto written = write(wakePipe[1], &number, 1);
    errno = before;
}

/// The writer waits here for the end; else it would go on and complain of its failed write.
void WakeAndStay(int signal)
{
    Wake(signal);
    for (;;)
        pause();
}

/// A handler, unlike the choice to ignore a signal, is not handed down to programs that are
/// started.
void TakeForError(int) {}

void Handle(int signal, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
}

void HandleUnlessIgnored(int signal, void (*handler)(int))
{
    struct sigaction action = {};
    if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler != SIG_IGN)
        Handle(signal, handler);
}

bool OpenWakePipe()
{
    if (wakePipe[0] >= 0)
        return true;
    if (pipe(wakePipe) != 0)
        return false;
    for (const int end : wakePipe)
        fcntl(end, F_SETFD, FD_CLOEXEC);
    // Where so many signals wait that the pipe is full, one more says nothing new.
    fcntl(wakePipe[1], F_SETFL, O_NONBLOCK);
    return true;
}

/// The next signal; 0 when the watch is over.
int NextSignal()
{
    char number = 0;
    while (read(wakePipe[0], &number, 1) < 0 && errno == EINTR) {
    }
    return number;
}

} // namespace

void EndBySignal(int signal)
{
    Handle(signal, SIG_DFL);
    sigset_t only;
    sigemptyset(&only);
    sigaddset(&only, signal);
    pthread_sigmask(SIG_UNBLOCK, &only, nullptr);
    kill(getpid(), signal);
    _exit(128 + signal);
}

SignalWatch::SignalWatch(BrokenPipe brokenPipe, End end) : m_end(std::move(end))
{
    if (!OpenWakePipe())
        return;
    m_thread = std::thread([this] { Await(); });
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        HandleUnlessIgnored(signal, Wake);
    HandleUnlessIgnored(SIGPIPE, brokenPipe == BrokenPipe::Ends ? WakeAndStay : TakeForError);
    HandleUnlessIgnored(SIGXFSZ, TakeForError);
}

SignalWatch::~SignalWatch()
{
    if (!m_thread.joinable())
        return;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE, SIGXFSZ})
        HandleUnlessIgnored(signal, SIG_DFL);
    Wake(0);
    m_thread.join();
    ForgetUndoing();
}

void SignalWatch::Await() const
{
    while (const int signal = NextSignal())
        UndoAll([this, signal] { m_end(signal); });
}

#else

void EndBySignal(int signal)
{
    std::_Exit(128 + signal);
}

SignalWatch::SignalWatch(BrokenPipe, End end) : m_end(std::move(end)) {}
SignalWatch::~SignalWatch() = default;

#endif

} // namespace vellumo
