// This program has a sync of its own, which fails as a disk would.

#include "palmtools/common/files.h"
#include "palmtools/support.h"

#include <gtest/gtest.h>

#ifndef _WIN32

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// The code with which files and folders fail to be synced, 0 where they do not.
struct {
    int file = 0, folder = 0;
} failures;

std::string synced; ///< an f for each file, an F for each folder

} // namespace

extern "C" int fsync(int descriptor)
{
    struct stat status = {};
    fstat(descriptor, &status);
    const bool isFolder = S_ISDIR(status.st_mode);
    synced += isFolder ? 'F' : 'f';
    errno = isFolder ? failures.folder : failures.file;
    return errno == 0 ? 0 : -1;
}

namespace palmtools {
namespace {

class FailedSync : public testing::Test
{
protected:
    FailedSync()
    {
        failures = {};
        synced.clear();
        WriteContent("a.ro", "before");
    }

    const TemporaryFolder m_folder;
};

TEST_F(FailedSync, FileAndFolderAreSynced)
{
    EXPECT_FALSE(ReplaceFile("a.ro", "after"));
    EXPECT_EQ(synced, "fF");
}

TEST_F(FailedSync, OfTheFileLeavesWhatWasThere)
{
    for (const int code : {EIO, ENOSPC, EDQUOT}) {
        failures.file = code;
        const auto error = ReplaceFile("a.ro", "after");
        ASSERT_TRUE(error);
        EXPECT_EQ(error->text, "cannot be written: " + std::generic_category().message(code));
        EXPECT_EQ(ContentOf("a.ro"), "before");
        EXPECT_EQ(m_folder.Names(), "a.ro ");
    }
    EXPECT_EQ(synced, "fff");
}

TEST_F(FailedSync, OfTheFolderIsNoSuccess)
{
    failures.folder = EIO;
    const auto error = ReplaceFile("a.ro", "after");
    ASSERT_TRUE(error);
    EXPECT_EQ(ContentOf("a.ro"), "after");
    EXPECT_EQ(m_folder.Names(), "a.ro ");
}

TEST_F(FailedSync, IsNoneWhereThereIsNothingToSync)
{
    failures = {EINVAL, EINVAL};
    EXPECT_FALSE(ReplaceFile("a.ro", "after"));
    EXPECT_EQ(ContentOf("a.ro"), "after");
}

} // namespace
} // namespace palmtools

#endif
