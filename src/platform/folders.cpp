#include "platform/folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#else
#include <QTemporaryFile>
#endif

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

bool MayWriteIn(const QString &folder)
{
#ifdef Q_OS_UNIX
    // By the rights that writing itself has; access() would ask for those of the real user.
    return faccessat(AT_FDCWD, QFile::encodeName(folder).constData(), W_OK | X_OK, AT_EACCESS) == 0;
#else
    return QTemporaryFile(folder + "/XXXXXX"_L1).open(); // lists of rights tell less than a try
#endif
}

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
QString FolderInHome(const char *variable, QLatin1StringView usual)
{
    // The platform's rules: a relative path counts for none.
    const QString named = qEnvironmentVariable(variable);
    const bool isUsable = QDir::isAbsolutePath(named);
    return (isUsable ? named : QDir::homePath() + usual) + "/vellumo-designer"_L1;
}
#endif

} // namespace

QString ApplicationFolder()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
}

QString WrittenFolder(const QString &application, const QString &standIn)
{
    if (standIn.isEmpty() || MayWriteIn(application))
        return application;
    const QFileInfo folder(standIn);
    if (QDir().mkpath(folder.path()))
        QDir().mkdir(standIn, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return standIn;
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
    return FolderInHome("XDG_STATE_HOME", "/.local/state"_L1);
#else
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
#endif
}

QString DataFolder()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    return FolderInHome("XDG_DATA_HOME", "/.local/share"_L1);
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
