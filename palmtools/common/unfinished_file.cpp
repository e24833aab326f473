#include "palmtools/common/unfinished_file.h"

#include <cstdio>
#include <random>
#include <string>

namespace palmtools {
namespace {

namespace fs = std::filesystem;

/// It does not contain the target's, which may already be as long as names can be.
std::string UnguessableName()
{
    std::random_device random;
    char name[32];
    std::snprintf(name, sizeof name, "palmtools-%08x%08x.new", random(), random());
    return name;
}

} // namespace

UnfinishedFile::~UnfinishedFile()
{
    m_file = OutputFile(); // not every system removes a file that is open
    std::error_code ignored;
    if (!m_path.empty())
        fs::remove(m_path, ignored);
}

std::error_code UnfinishedFile::Create()
{
    std::error_code failure;
    const bool replaces = fs::exists(m_target, failure);
    if (replaces)
        failure = CheckMayWrite(m_target); // the right to its folder would be enough to replace it
    if (failure)
        return failure;
    // A name that is taken already is next to impossible; twice in a row, something else is wrong.
    failure = std::make_error_code(std::errc::file_exists);
    for (int attempt = 0; attempt < 2 && failure == std::errc::file_exists; ++attempt) {
        const fs::path path = fs::path(m_target).replace_filename(UnguessableName());
        failure = replaces ? m_file.CreateLike(path, m_target) : m_file.Create(path);
        if (!failure)
            m_path = path;
    }
    return failure;
}

std::error_code UnfinishedFile::Close()
{
    if (const std::error_code failure = m_file.Sync())
        return failure;
    return m_file.Close();
}

std::error_code UnfinishedFile::Finish()
{
    std::error_code failure;
    fs::rename(m_path, m_target, failure);
    if (failure)
        return failure;
    m_path.clear();
    return SyncFolder(m_target.has_parent_path() ? m_target.parent_path() : ".");
}

} // namespace palmtools
