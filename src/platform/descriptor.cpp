#include "platform/descriptor.h"

#include "platform/system_error.h"

#include <cerrno>
#include <csignal>

#include <poll.h>
#include <unistd.h>

namespace vellumo {
namespace {

/// While it lives, a write into a pipe that nobody reads fails and does not end the process. The
/// signal is held back for this thread alone, since its handling belongs to the whole process.
class NoPipeSignal
{
public:
    NoPipeSignal()
    {
        sigemptyset(&m_pipe);
        sigaddset(&m_pipe, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &m_pipe, &m_before);
    }
    ~NoPipeSignal()
    {
        const int reason = errno;
        sigset_t pending;
        sigpending(&pending);
        if (int signal = 0; sigismember(&pending, SIGPIPE) == 1)
            sigwait(&m_pipe, &signal);
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
        errno = reason;
    }
    Q_DISABLE_COPY_MOVE(NoPipeSignal)

private:
    sigset_t m_pipe = {}, m_before = {};
};

/// A pipe that was handed to us may be one that does not wait by itself.
bool WaitForRoom(int descriptor)
{
    pollfd waiting = {.fd = descriptor, .events = POLLOUT, .revents = 0};
    return poll(&waiting, 1, -1) > 0 || errno == EINTR;
}

} // namespace

Outcome Descriptor::Write(QByteArrayView bytes) const
{
    const NoPipeSignal noSignal;
    while (!bytes.isEmpty()) {
        errno = EIO; // of a write that neither fails nor writes
        const ssize_t written = ::write(m_number, bytes.data(), static_cast<size_t>(bytes.size()));
        if (written > 0)
            bytes = bytes.sliced(written);
        else if (errno != EINTR && (errno != EAGAIN || !WaitForRoom(m_number)))
            return LastError();
    }
    return done;
}

Outcome Descriptor::Sync() const
{
    if (::fsync(m_number) == 0 || errno == EINVAL || errno == ENOTSUP || errno == ENOSYS)
        return done;
    return LastError();
}

Outcome Descriptor::Close()
{
    const int number = std::exchange(m_number, -1);
    return number < 0 || ::close(number) == 0 ? done : Outcome(LastError());
}

} // namespace vellumo
