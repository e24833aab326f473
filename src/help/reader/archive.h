#pragma once

#include "help/reader/object_directory.h"
#include "platform/result.h"

#include <QString>

#include <memory>

struct chmFile;

namespace vellumo {

/// The objects of a compiled help file, open for reading. They go by their names without the slash
/// before them: "pictures/103.png".
class Archive
{
public:
    /// Fails for what cannot be read, is no help file, or is damaged.
    static Result<Archive> Open(const QString &path);

    QString Path() const { return m_path; }

    /// The bytes of an object; fails for one that is not there or has more than 16 MiB.
    Result<QByteArray> Object(const QString &name) const;

    /// The object that a stored path means, with the path's anchor; empty where there is none. Some
    /// compilers put the folder in which they ran in front of it, so leading folders are dropped
    /// until the object exists. The file is not read for it.
    QString Locate(QString stored) const;

private:
    struct Closer {
        void operator()(chmFile *file) const;
    };

    Archive(QString path, ObjectDirectory objects);

    QString m_path;
    ObjectDirectory m_objects;
    std::unique_ptr<chmFile, Closer> m_file;
};

/// What is said of a file that cannot be shown.
Error DamagedHelp(const QString &path);

} // namespace vellumo
