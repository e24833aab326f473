#include "palmtools/common/files.h"
#include "palmtools/support.h"

#include <gtest/gtest.h>

#ifndef _WIN32

#include "support/ordinary_user.h"

#include <sys/stat.h>

namespace palmtools {
namespace {

struct stat StatusOf(const char *path)
{
    struct stat status = {};
    EXPECT_EQ(stat(path, &status), 0);
    return status;
}

mode_t RightsOf(const char *path)
{
    return StatusOf(path).st_mode & 07777;
}

/// An older file "a.ro" in a folder in which everybody may write.
class ReplacedFiles : public testing::Test
{
protected:
    ReplacedFiles()
    {
        WriteContent("a.ro", "before");
        chmod(m_folder.path().c_str(), 0777);
    }

    const TemporaryFolder m_folder;
};

TEST_F(ReplacedFiles, ThatMayNotBeWrittenStay)
{
    ASSERT_EQ(chmod("a.ro", 0444), 0);
    std::optional<Error> error;
    {
        const AsOrdinaryUser user;
        error = ReplaceFile("a.ro", "after");
    }
    ASSERT_TRUE(error);
    EXPECT_EQ(error->text, "cannot be written: Permission denied");
    EXPECT_EQ(ContentOf("a.ro"), "before");
    EXPECT_EQ(RightsOf("a.ro"), 0444u);
    EXPECT_EQ(m_folder.Names(), "a.ro ");
}

TEST_F(ReplacedFiles, HandOnTheirRights)
{
    for (const mode_t rights : {0600u, 0640u, 0664u, 0777u}) {
        SCOPED_TRACE(rights);
        ASSERT_EQ(chmod("a.ro", rights), 0);
        EXPECT_FALSE(ReplaceFile("a.ro", "after"));
        EXPECT_EQ(RightsOf("a.ro"), rights);
    }
    EXPECT_EQ(ContentOf("a.ro"), "after");
}

TEST_F(ReplacedFiles, HandOnNoRightsOfTheProgramsUser)
{
    ASSERT_EQ(chmod("a.ro", 06755), 0);
    EXPECT_FALSE(ReplaceFile("a.ro", "after"));
    EXPECT_EQ(RightsOf("a.ro"), 0755u);
}

TEST_F(ReplacedFiles, StayTheirOwnersAndTheirGroups)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give files away";
    ASSERT_EQ(chown("a.ro", otherUser, otherUser), 0);
    ASSERT_EQ(chmod("a.ro", 0640), 0);
    EXPECT_FALSE(ReplaceFile("a.ro", "after"));
    EXPECT_EQ(StatusOf("a.ro").st_uid, otherUser);
    EXPECT_EQ(StatusOf("a.ro").st_gid, otherUser);
    EXPECT_EQ(RightsOf("a.ro"), 0640u);
}

TEST_F(ReplacedFiles, GiveAnotherGroupNoRights)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give files away";
    ASSERT_EQ(chown("a.ro", ordinaryUser, otherUser), 0);
    ASSERT_EQ(chmod("a.ro", 0664), 0);
    {
        const AsOrdinaryUser user;
        EXPECT_FALSE(ReplaceFile("a.ro", "after"));
    }
    EXPECT_EQ(ContentOf("a.ro"), "after");
    EXPECT_EQ(StatusOf("a.ro").st_uid, ordinaryUser);
    EXPECT_NE(StatusOf("a.ro").st_gid, otherUser);
    EXPECT_EQ(RightsOf("a.ro"), 0604u);
}

} // namespace
} // namespace palmtools

#endif
