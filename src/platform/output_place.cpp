#include "platform/output_place.h"

#include "platform/system_error.h"

#include <QByteArrayList>
#include <QFile>

#include <cerrno>
#include <climits>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

#ifdef O_PATH
constexpr int openFolder = O_PATH | O_DIRECTORY | O_CLOEXEC; // needs no right to list the folder
#else
constexpr int openFolder = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
#endif
constexpr int mostLinks = 40; // as many as the kernel follows

bool MayFollow(const struct stat &link, const struct stat &folder)
{
    const auto isTrusted = [](const struct stat &one) {
        return one.st_uid == geteuid() || one.st_uid == 0;
    };
    const bool shared = (folder.st_mode & (S_IWGRP | S_IWOTH)) != 0 || !isTrusted(folder);
    return !shared || isTrusted(link);
}

/// Whether this is the folder that has our own descriptors, where a link is only the picture of
/// one.
bool HasOwnDescriptors(const struct stat &folder)
{
    struct stat own = {};
    return stat("/dev/fd", &own) == 0 && own.st_dev == folder.st_dev && own.st_ino == folder.st_ino;
}

class Walk
{
public:
    explicit Walk(const QByteArray &path) { Enter(path); }

    Result<OutputPlace> ToItsEnd()
    {
        while (m_folder && !m_ahead.isEmpty()) {
            const QByteArray name = m_ahead.takeFirst();
            struct stat status = {};
            const bool found = fstatat(*m_folder, name, &status, AT_SYMLINK_NOFOLLOW) == 0;
            if (!found && (errno != ENOENT || !m_ahead.isEmpty()))
                return LastError();
            if (S_ISLNK(status.st_mode)) {
                const Result<int> own = Follow(name, status);
                if (!own)
                    return own.error();
                if (*own >= 0)
                    return OutputPlace{.name = name, .ownDescriptor = *own};
            } else if (m_ahead.isEmpty() && name != "." && name != "..") {
                return OutputPlace{std::move(m_folder), name, status};
            } else {
                m_folder = Descriptor(openat(*m_folder, name, openFolder | O_NOFOLLOW));
            }
        }
        return m_folder ? Result(OutputPlace{std::move(m_folder), {}}) : LastError();
    }

private:
    /// A path with a slash at its end is that of a folder.
    void Enter(const QByteArray &path)
    {
        QByteArrayList names = path.split('/');
        names.removeAll(QByteArray());
        if (names.isEmpty() || path.endsWith('/'))
            names.append(".");
        m_ahead = names + m_ahead;
        if (path.startsWith('/'))
            m_folder = Descriptor(open("/", openFolder));
        else if (!m_folder)
            m_folder = Descriptor(open(".", openFolder));
    }

    /// The number of the own descriptor that the link is, or -1 where it leads on.
    Result<int> Follow(const QByteArray &name, const struct stat &link)
    {
        struct stat folder = {};
        if (fstat(*m_folder, &folder) != 0)
            return LastError();
        if (m_ahead.isEmpty() && HasOwnDescriptors(folder))
            return name.toInt();
        if (!MayFollow(link, folder))
            return Error{
                u"The link '%1' is somebody else's, in a folder where others may write"_s.arg(
                    QFile::decodeName(name))};
        if (++m_links > mostLinks) {
            errno = ELOOP;
            return LastError();
        }
        char target[PATH_MAX];
        const ssize_t length = readlinkat(*m_folder, name, target, sizeof target);
        if (length < 0)
            return LastError();
        Enter(QByteArray(target, length));
        return -1;
    }

    Descriptor m_folder;
    QByteArrayList m_ahead; ///< names still to go
    int m_links = 0;
};

} // namespace

Result<OutputPlace> FollowToPlace(const QByteArray &path)
{
    if (!path.isEmpty() && !path.contains('\0'))
        return Walk(path).ToItsEnd();
    errno = path.isEmpty() ? ENOENT : EINVAL;
    return LastError();
}

} // namespace vellumo
