#pragma once

#include <functional>
#include <thread>

namespace vellumo {

/// Ends the program as a signal does that nobody handles.
[[noreturn]] void EndBySignal(int signal);

/// What it means that nobody reads any longer what the program writes.
enum class BrokenPipe {
    Ends,      ///< the program ends by SIGPIPE, and the writer comes no further
    IsAnError, ///< of the write
};

/// Watches the signals that end a program: SIGINT, SIGTERM and SIGHUP, but none that was ignored
/// when the program started, and SIGPIPE as told. A write beyond the size that a file may have is
/// an error of that write, as on a full disk. One watch lives at a time; where the platform has no
/// signals, it does nothing.
class SignalWatch
{
public:
    using End = std::function<void(int signal)>;

    /// A signal undoes all that is Undoable and then calls the function, in a thread of its own.
    /// The function calls EndBySignal, or sees to it where something is put in order first.
    SignalWatch(BrokenPipe brokenPipe, End end);
    /// From here on signals do again what they do by themselves.
    ~SignalWatch();
    SignalWatch(const SignalWatch &) = delete;
    SignalWatch &operator=(const SignalWatch &) = delete;

private:
    void Await() const;

    End m_end;
    std::thread m_thread;
};

} // namespace vellumo
