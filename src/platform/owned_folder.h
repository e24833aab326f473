#pragma once

#include "platform/result.h"

#include <filesystem>
#include <memory>
#include <vector>

namespace vellumo {

struct FolderLock;

/// A folder for its owner's own use, which can tell whether the owner lives: it is locked for as
/// long, and however the owner ends, the lock goes. The folder itself stays until it is removed.
class OwnedFolder
{
public:
    /// Makes one that nobody else may enter. Its name is the prefix and six characters at random.
    static Result<OwnedFolder> Make(const QString &parent, const QString &prefix);

    /// Takes over the folders of such names that have no owner any longer, which are left-overs.
    /// Those of other users are none, nor are links.
    static std::vector<OwnedFolder> TakeOver(const QString &parent, const QString &prefix);

    /// Without a separator at its end.
    QString path() const;

    /// Removes it with everything in it; whether it is gone.
    bool Remove();

private:
    OwnedFolder(const QString &path, std::shared_ptr<FolderLock> lock);

    std::filesystem::path m_path;       // as the system has it, so that no name can fail a removal
    std::shared_ptr<FolderLock> m_lock; ///< shared only with copies of this
};

} // namespace vellumo
