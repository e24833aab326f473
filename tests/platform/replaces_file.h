#pragma once

#include "platform/files.h"

#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace vellumo {

/// Of the name itself, not of what a link leads to.
inline struct stat StatusOf(const QString &path)
{
    struct stat status = {};
    lstat(QFile::encodeName(path), &status);
    return status;
}

class ReplacesFile : public testing::Test
{
protected:
    QString InFolder(const QString &name) const { return m_folder.filePath(name); }
    QByteArray Name(const QString &name) const { return QFile::encodeName(InFolder(name)); }
    QStringList Names() const { return NamesIn(m_folder.path()); }

    QTemporaryDir m_folder;
};

/// Root's tests give files to them.
constexpr uid_t nobody = 65534, somebody = 12345;

} // namespace vellumo
