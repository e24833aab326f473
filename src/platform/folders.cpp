#include "platform/folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace vellumo {

QString ApplicationFolder()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
}

QString ProjectsFolder()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir::toNativeSeparators(documents + "/My Vellumo/"_L1);
}

bool MakeProjectsFolder()
{
    return QDir().mkpath(ProjectsFolder());
}

QString StateFolder()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    // The platform's rules: a relative path counts for none.
    const QString named = qEnvironmentVariable("XDG_STATE_HOME");
    const bool isUsable = QDir::isAbsolutePath(named);
    return (isUsable ? named : QDir::homePath() + "/.local/state"_L1) + "/vellumo-designer"_L1;
#else
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
#endif
}

QString DataFolderOf(const QString &folder)
{
    QString path = folder;
    path.replace(u'/', u'\\');
    const bool hasDrive = path.size() >= 2 && path[1] == u':';
    return hasDrive ? path : "Z:"_L1 + path;
}

} // namespace vellumo
