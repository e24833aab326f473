#include "platform/files.h"

#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <functional>

#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// What becomes of a sync: an errno, or 0 for the real one.
std::function<int(bool isFolder)> fate;

} // namespace

/// Takes the place of the C library's.
extern "C" int fsync(int descriptor)
{
    struct stat status = {};
    fstat(descriptor, &status);
    errno = fate ? fate(S_ISDIR(status.st_mode)) : 0;
    return errno == 0 ? static_cast<int>(syscall(SYS_fsync, descriptor)) : -1;
}

namespace {

class FailingSync : public testing::Test
{
protected:
    FailingSync() { WriteBytes(m_path, "old"); }
    ~FailingSync() override { fate = {}; }

    const QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(u"a.vmp"_s);
};

} // namespace

TEST_F(FailingSync, ComesBeforeTheOldFileIsGone)
{
    QStringList seen;
    fate = [&](bool isFolder) {
        seen += (isFolder ? u"folder: "_s : u"file: "_s) + QString::fromLatin1(BytesOf(m_path));
        return 0;
    };
    EXPECT_TRUE(ReplaceFile(m_path, "new"));
    EXPECT_EQ(seen, (QStringList{u"file: old"_s, u"folder: new"_s}));
}

TEST_F(FailingSync, LeavesTheOldFileAndIsTold)
{
    for (const int reason : {ENOSPC, EIO, EDQUOT, EROFS}) {
        SCOPED_TRACE(reason);
        fate = [&](bool isFolder) { return isFolder ? 0 : reason; };
        const Outcome outcome = ReplaceFile(m_path, "new");
        ASSERT_FALSE(outcome);
        EXPECT_EQ(outcome.error().text, qt_error_string(reason));
        EXPECT_EQ(outcome.error().file, m_path);
        EXPECT_EQ(BytesOf(m_path), "old");
        EXPECT_EQ(NamesIn(m_folder.path()), QStringList{u"a.vmp"_s});
    }
}

TEST_F(FailingSync, OfTheFolderIsToldToo)
{
    fate = [](bool isFolder) { return isFolder ? EIO : 0; };
    const Outcome outcome = ReplaceFile(m_path, "new");
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.error().text, u"Input/output error"_s);
    EXPECT_EQ(BytesOf(m_path), "new") << "whole, whatever is on the disk";
}

TEST_F(FailingSync, IsNoneWhereTheFileSystemKnowsOfNoSync)
{
    for (const int reason : {EINVAL, ENOTSUP, ENOSYS}) {
        fate = [reason](bool) { return reason; };
        EXPECT_TRUE(ReplaceFile(m_path, "new"));
    }
}
