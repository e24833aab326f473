#pragma once

#include <functional>

namespace vellumo {

/// Something that must not outlive the program when a signal ends it, such as a tool that runs.
class Undoable
{
public:
    /// Makes it; no signal comes in between. A signal undoes it, in another thread while the maker
    /// goes on. What is made after a signal is undone at once.
    Undoable(const std::function<void()> &make, std::function<void()> undo);
    /// It is gone by other means, or may stay.
    ~Undoable();
    Undoable(const Undoable &) = delete;
    Undoable &operator=(const Undoable &) = delete;

private:
    std::function<void()> m_undo;
};

/// While it lives, no signal comes in between: what undoes waits until it is gone. For what is
/// short, and makes nothing undoable.
class Undivided
{
public:
    Undivided();
    ~Undivided();
    Undivided(const Undivided &) = delete;
    Undivided &operator=(const Undivided &) = delete;
};

/// Undoes all that is undoable, the latest first, and then calls the function. Meanwhile nothing
/// undoable comes or goes: whoever tries waits.
void UndoAll(const std::function<void()> &atTheEnd);

/// From here on what is made is not undone at once any longer.
void ForgetUndoing();

} // namespace vellumo
