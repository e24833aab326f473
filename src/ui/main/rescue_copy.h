#pragma once

#include "model/snapshot.h"
#include "platform/owned_folder.h"

#include <optional>
#include <vector>

namespace vellumo {

/// A snapshot of unsaved work on disk, in a folder of its own within the state folder. It belongs
/// to one running designer, and tells others whether that still lives.
class RescueCopy
{
public:
    /// Makes the state folder where it is missing.
    static Result<RescueCopy> Make(const QString &stateFolder);

    /// Takes over the copies whose designers are gone. What never became one is removed.
    static std::vector<RescueCopy> TakeOver(const QString &stateFolder);

    /// On failure an earlier snapshot is as it was.
    Outcome Write(const Snapshot &snapshot) const;
    /// Nothing where none was written yet, or where it is damaged or of another version.
    std::optional<Snapshot> Read() const;

    /// Whether it still has its folder.
    bool IsThere() const;

    /// Removes the copy with its folder.
    void Remove();

private:
    explicit RescueCopy(OwnedFolder folder) : m_folder(std::move(folder)) {}
    QString File() const;

    OwnedFolder m_folder;
};

} // namespace vellumo
