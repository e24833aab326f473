#pragma once

#include "faults/tracee.h"

#include <set>
#include <vector>

namespace faults {

/// Which files were written, and whether they then reached the disk.
class Journal
{
public:
    void Wrote(const FileId &file) { m_pending.insert(file); }
    void Synced(const FileId &file) { m_pending.erase(file); }
    /// What was written may be gone, and another attempt, that succeeds, does not bring it back.
    void SyncFailed(const FileId &file) { m_lost.insert(file); }
    /// The number of the file can be that of a new one.
    void Removed(const FileId &file)
    {
        m_pending.erase(file);
        m_lost.erase(file);
    }

    /// Whether everything that was written is on the disk.
    bool IsSafe(const FileId &file) const
    {
        return !m_pending.contains(file) && !m_lost.contains(file);
    }

    /// A file is given a name that it did not have.
    void Named(const FileId &file, const std::filesystem::path &name)
    {
        if (!IsSafe(file))
            m_namedTooEarly.push_back(name);
    }
    /// The names that were given to files that were not safe on the disk.
    const std::vector<std::filesystem::path> &NamedTooEarly() const { return m_namedTooEarly; }

private:
    std::set<FileId> m_pending, m_lost;
    std::vector<std::filesystem::path> m_namedTooEarly;
};

} // namespace faults
