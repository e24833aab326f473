#include "ui/main/rescue_copy.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr QLatin1StringView prefix{"rescue-"};

} // namespace

Result<RescueCopy> RescueCopy::Make(const QString &stateFolder)
{
    QDir().mkpath(stateFolder);
    Result<OwnedFolder> folder = OwnedFolder::Make(stateFolder, prefix);
    if (!folder)
        return folder.error();
    return RescueCopy(std::move(*folder));
}

std::vector<RescueCopy> RescueCopy::TakeOver(const QString &stateFolder)
{
    std::vector<RescueCopy> copies;
    for (OwnedFolder &folder : OwnedFolder::TakeOver(stateFolder, prefix)) {
        RescueCopy copy(std::move(folder));
        if (QFileInfo::exists(copy.File()))
            copies.push_back(std::move(copy));
        else
            copy.Remove();
    }
    return copies;
}

Outcome RescueCopy::Write(const Snapshot &snapshot) const
{
    return ReplaceFile(File(), WriteSnapshot(snapshot));
}

std::optional<Snapshot> RescueCopy::Read() const
{
    const Result<QByteArray> bytes = ReadWholeFile(File(), snapshotLimit);
    if (!bytes)
        return std::nullopt;
    Result<Snapshot> snapshot = ReadSnapshot(*bytes);
    if (!snapshot)
        return std::nullopt;
    return std::move(*snapshot);
}

bool RescueCopy::IsThere() const
{
    return QFileInfo::exists(m_folder.path());
}

void RescueCopy::Remove()
{
    m_folder.Remove();
}

QString RescueCopy::File() const
{
    return m_folder.path() + "/project"_L1;
}

} // namespace vellumo
