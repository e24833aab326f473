#include "platform/files.h"

#include "platform/output_place.h"
#include "platform/system_error.h"
#include "platform/undoable.h"

#include <QFile>
#include <QRandomGenerator>
#include <QScopeGuard>

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr int newFile = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;

/// Nobody can guess it, and it does not grow with the name that the file will have.
QByteArray TemporaryName()
{
    return ".vellumo-" + QByteArray::number(QRandomGenerator::system()->generate64(), 36);
}

/// Gives a file the owner and the rights of the one whose place it takes. Where a user may not give
/// the group, it gets no rights; a file system without owners or rights has its own.
void TakeOver(const Descriptor &file, const struct stat &old)
{
    mode_t rights = old.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
    const bool sameGroup = fchown(*file, uid_t(-1), old.st_gid) == 0;
    if (!sameGroup)
        rights &= ~mode_t(S_IRWXG);
    [[maybe_unused]] const int sameOwner = fchown(*file, old.st_uid, gid_t(-1));
    [[maybe_unused]] const int sameRights = fchmod(*file, rights);
}

Outcome Fill(Descriptor file, const QByteArray &bytes)
{
    if (!file)
        return LastError();
    if (Outcome written = file.Write(bytes); !written)
        return written;
    if (Outcome synced = file.Sync(); !synced)
        return synced;
    return file.Close();
}

/// What is no file keeps its place, as it does for cp.
Outcome WriteInto(const OutputPlace &place, const QByteArray &bytes)
{
    if (place.ownDescriptor >= 0)
        return Fill(Descriptor(fcntl(place.ownDescriptor, F_DUPFD_CLOEXEC, 0)), bytes);
    constexpr int existing = O_WRONLY | O_NOFOLLOW | O_NOCTTY | O_CLOEXEC;
    return Fill(Descriptor(openat(*place.folder, place.name, existing)), bytes);
}

/// The new file is on the disk before it takes the old one's name, and then the name is, too.
Outcome PutInPlace(const OutputPlace &place, const QByteArray &bytes)
{
    const bool replaces = place.status.st_mode != 0;
    if (replaces && faccessat(*place.folder, place.name, W_OK, AT_EACCESS) != 0)
        return LastError();
    const Descriptor folder(openat(*place.folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder && errno != EACCES) // one that may not be read cannot be synced, but written to
        return LastError();

    const Undivided write; // a signal would leave the new file behind
    const QByteArray temporary = TemporaryName();
    Descriptor file(openat(*place.folder, temporary, newFile, replaces ? 0600 : 0666));
    if (!file)
        return LastError();
    auto remove = qScopeGuard([&] { unlinkat(*place.folder, temporary, 0); });
    if (replaces)
        TakeOver(file, place.status);
    if (Outcome filled = Fill(std::move(file), bytes); !filled)
        return filled;
    if (renameat(*place.folder, temporary, *place.folder, place.name) != 0)
        return LastError();
    remove.dismiss();
    return folder ? folder.Sync() : done;
}

Outcome Put(const Result<OutputPlace> &place, const QByteArray &bytes)
{
    if (!place)
        return place.error();
    if (place->IsFolder())
        return Error{u"Is a folder"_s};
    return place->IsFileOrFree() ? PutInPlace(*place, bytes) : WriteInto(*place, bytes);
}

/// Removes what would stand in the way of a new file. A file that may not be written, as in the
/// hands of another, stays.
Outcome MakeWay(const QByteArray &path)
{
    struct stat old = {};
    if (lstat(path, &old) != 0)
        return errno == ENOENT ? done : Outcome(LastError());
    if (S_ISDIR(old.st_mode))
        return Error{u"Is a folder"_s};
    if (S_ISREG(old.st_mode) && faccessat(AT_FDCWD, path, W_OK, AT_EACCESS) != 0)
        return LastError();
    return unlink(path) == 0 ? done : Outcome(LastError());
}

Outcome Named(const Outcome &outcome, const QString &path)
{
    if (outcome)
        return outcome;
    Error named = outcome.error();
    named.file = path;
    return named;
}

} // namespace

Outcome ReplaceFile(const QString &path, const QByteArray &bytes)
{
    return Named(Put(FollowToPlace(QFile::encodeName(path)), bytes), path);
}

bool IsWrittenInto(const QString &path)
{
    const Result<OutputPlace> place = FollowToPlace(QFile::encodeName(path));
    return place && !place->IsFolder() && !place->IsFileOrFree();
}

Outcome WriteNewFile(const QString &path, const QByteArray &bytes)
{
    const QByteArray name = QFile::encodeName(path);
    if (const Outcome free = MakeWay(name); !free)
        return Named(free, path);
    return Named(Fill(Descriptor(open(name, newFile, 0666)), bytes), path);
}

} // namespace vellumo
