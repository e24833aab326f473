#include "platform/work_folder.h"

#include <QDir>
#include <QFileInfo>

#include <chrono>
#include <filesystem>
#include <thread>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr QLatin1StringView prefix{"vellumo-work-"};

// The sticky bit means nothing in a folder that nobody else may enter, so nobody sets it there: it
// tells ours from a folder of the user's that only has such a name.
constexpr auto mark = std::filesystem::perms::owner_all | std::filesystem::perms::sticky_bit;

std::filesystem::path NativePath(const QString &path)
{
    return QFile(path).filesystemFileName();
}

bool IsMarked(const QString &path)
{
    std::error_code code;
    return std::filesystem::status(NativePath(path), code).permissions() == mark;
}

/// As it is named: of a folder that is not there the toolkit has no name.
QString TemporaryFolder()
{
    const QString named = qEnvironmentVariable("TMPDIR");
    return named.isEmpty() ? QDir::tempPath() : named;
}

/// A tool that was ended a moment ago may still write: for a second, what it left goes, too.
void RemoveFromTool(OwnedFolder folder)
{
    for (int attempt = 0; !folder.Remove() && attempt < 100; ++attempt)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
}

} // namespace

WorkFolder::WorkFolder()
    : m_undoable([this] { Make(); },
                 [this] {
                     if (m_folder)
                         RemoveFromTool(*m_folder);
                 })
{}

WorkFolder::~WorkFolder()
{
    const Undivided alone; // a signal's undoing would remove it at the same time
    if (m_folder)
        m_folder->Remove();
}

void WorkFolder::Make()
{
    const QString temporary = TemporaryFolder();
    if (!QFileInfo(temporary).isDir()) {
        m_state = Error{u"There is no such folder for temporary files"_s, temporary};
        return;
    }
    Result<OwnedFolder> folder = OwnedFolder::Make(temporary, prefix);
    if (!folder) {
        m_state = folder.error();
        return;
    }
    m_folder = std::move(*folder);
    std::error_code code; // where there are no such rights, it is not taken for a left-over
    std::filesystem::permissions(NativePath(m_folder->path()), mark, code);
}

void WorkFolder::RemoveLeft()
{
    for (OwnedFolder &left : OwnedFolder::TakeOver(TemporaryFolder(), prefix)) {
        if (IsMarked(left.path()))
            left.Remove();
        else
            QDir().rmdir(left.path()); // one that was not marked yet is empty
    }
}

} // namespace vellumo
