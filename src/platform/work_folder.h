#pragma once

#include "platform/owned_folder.h"
#include "platform/undoable.h"

#include <optional>

namespace vellumo {

/// A private folder for temporary files. It goes with everything in it when this goes or a signal
/// ends the program; that of a program which was killed goes by RemoveLeft.
class WorkFolder
{
public:
    WorkFolder();
    ~WorkFolder();

    /// An error where it could not be made.
    const Outcome &state() const { return m_state; }
    /// Without a separator at its end.
    QString path() const { return m_folder->path(); }

    /// Removes the user's folders whose programs are gone.
    static void RemoveLeft();

private:
    void Make();

    Outcome m_state = done;
    std::optional<OwnedFolder> m_folder;
    Undoable m_undoable;
};

} // namespace vellumo
