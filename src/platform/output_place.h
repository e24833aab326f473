#pragma once

#include "platform/descriptor.h"

#include <QByteArray>

#include <sys/stat.h>

namespace vellumo {

/// Where an output goes after every link on its way was followed (POSIX).
struct OutputPlace {
    Descriptor folder = Descriptor(); ///< held open, so that nobody can put another in its place
    QByteArray name = {};             ///< in that folder; empty = the place is a folder
    struct stat status = {}; ///< of what stands there, which is no link; st_mode 0 = nothing does
    int ownDescriptor = -1;  ///< the place is this descriptor of ours, such as 1 for /dev/stdout

    bool IsFolder() const { return name.isEmpty() || S_ISDIR(status.st_mode); }
    bool IsFileOrFree() const
    {
        return ownDescriptor < 0 && (status.st_mode == 0 || S_ISREG(status.st_mode));
    }
};

/// Goes the way of a path, link by link. A link in a folder where others than the user and root may
/// write must be the user's own or root's: anybody could have laid another one there, to have a
/// file of the user replaced.
Result<OutputPlace> FollowToPlace(const QByteArray &path);

} // namespace vellumo
