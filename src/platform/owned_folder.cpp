#include "platform/owned_folder.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QTemporaryDir>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace vellumo {

#ifdef Q_OS_UNIX

/// The system's own lock, on the folder itself: it needs no file, and no process number that
/// another process may have by now.
struct FolderLock {
    const int folder;

    explicit FolderLock(int opened) : folder(opened) {}
    ~FolderLock() { close(folder); }
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;
};

namespace {

bool IsUsersOwnAt(int folder, const char *path)
{
    struct stat opened = {}, there = {};
    return fstat(folder, &opened) == 0 && lstat(path, &there) == 0 &&
           opened.st_ino == there.st_ino && opened.st_dev == there.st_dev &&
           opened.st_uid == geteuid();
}

/// Null where another has it, or where the folder is gone by now.
std::shared_ptr<FolderLock> Lock(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    const int folder = open(name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (folder < 0)
        return nullptr;
    auto lock = std::make_shared<FolderLock>(folder);
    const bool locked = flock(folder, LOCK_EX | LOCK_NB) == 0;
    return locked && IsUsersOwnAt(folder, name) ? lock : nullptr;
}

} // namespace

#else

struct FolderLock {
    QLockFile file;
};

namespace {

std::shared_ptr<FolderLock> Lock(const QString &path)
{
    auto lock = std::make_shared<FolderLock>(path + "/lock"_L1);
    lock->file.setStaleLockTime(0); // only of a process that is gone
    return lock->file.tryLock(0) ? lock : nullptr;
}

} // namespace

#endif

OwnedFolder::OwnedFolder(const QString &path, std::shared_ptr<FolderLock> lock)
    : m_path(QFile(path).filesystemFileName()), m_lock(std::move(lock))
{}

Result<OwnedFolder> OwnedFolder::Make(const QString &parent, const QString &prefix)
{
    // So many that others who look for left-overs all the time do not come first each time.
    constexpr int mostAttempts = 100;
    for (int attempt = 1;; ++attempt) {
        QTemporaryDir made(parent + u'/' + prefix + "XXXXXX"_L1);
        made.setAutoRemove(false);
        if (!made.isValid())
            return Error{made.errorString(), parent};
        auto lock = Lock(made.path());
        // Where folders cannot be locked, nobody takes this one over either.
        if (lock || attempt == mostAttempts)
            return OwnedFolder(made.path(), std::move(lock));
        // Somebody took the new folder for a left-over, before it was locked, and removes it.
        QDir().rmdir(made.path());
    }
}

std::vector<OwnedFolder> OwnedFolder::TakeOver(const QString &parent, const QString &prefix)
{
    const QStringList names = QDir(parent).entryList(
        {prefix + "??????"_L1}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks, QDir::Unsorted);
    std::vector<OwnedFolder> left;
    for (const QString &name : names) {
        const QString path = parent + u'/' + name;
        if (auto lock = Lock(path))
            left.push_back({path, std::move(lock)});
    }
    return left;
}

QString OwnedFolder::path() const
{
    return QFile(m_path).fileName();
}

bool OwnedFolder::Remove()
{
    std::error_code code;
    std::filesystem::remove_all(m_path, code);
    m_lock.reset(); // where the lock is a file, it goes only now
    std::filesystem::remove_all(m_path, code);
    return !std::filesystem::exists(m_path, code);
}

} // namespace vellumo
