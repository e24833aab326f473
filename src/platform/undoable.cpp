#include "platform/undoable.h"

#include <mutex>
#include <vector>

namespace vellumo {
namespace {

// Signals are the process's, and so is what they undo.
struct {
    std::mutex guard;
    std::vector<const std::function<void()> *> undo; ///< in the order in which it was made
    bool undone = false;
} all;

} // namespace

Undoable::Undoable(const std::function<void()> &make, std::function<void()> undo)
    : m_undo(std::move(undo))
{
    const std::lock_guard lock(all.guard);
    make();
    all.undo.push_back(&m_undo);
    if (all.undone)
        m_undo();
}

Undoable::~Undoable()
{
    const std::lock_guard lock(all.guard);
    std::erase(all.undo, &m_undo);
}

Undivided::Undivided()
{
    all.guard.lock();
}

Undivided::~Undivided()
{
    all.guard.unlock();
}

void UndoAll(const std::function<void()> &atTheEnd)
{
    const std::lock_guard lock(all.guard);
    all.undone = true;
    for (auto undo = all.undo.rbegin(); undo != all.undo.rend(); ++undo)
        (**undo)();
    atTheEnd();
}

void ForgetUndoing()
{
    const std::lock_guard lock(all.guard);
    all.undone = false;
}

} // namespace vellumo
