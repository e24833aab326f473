#include "palmtools/common/target.h"

#include "palmtools/common/files.h"
#include "palmtools/support.h"

#include <gtest/gtest.h>

#ifndef _WIN32

#include "support/ordinary_user.h"

#include <sys/stat.h>

namespace palmtools {
namespace {

namespace fs = std::filesystem;

/// Whose a link is and its folder, and whether it is followed.
struct OwnerRow {
    const char *what;
    uid_t link, folder;
    mode_t mode;
    bool isFollowed;
};

constexpr uid_t root = 0;

void LayLink(const OwnerRow &row)
{
    WriteContent("a.ro", "before");
    fs::create_directory("public");
    fs::create_symlink("../a.ro", "public/link.ro");
    ASSERT_EQ(lchown("public/link.ro", row.link, 0), 0);
    ASSERT_EQ(chown("public", row.folder, 0), 0);
    ASSERT_EQ(chmod("public", row.mode), 0);
}

const std::string refusal = "cannot be written: the link is neither yours nor root's";

TEST(Target, OfRootIsNotWhereOthersCouldHaveLaidALink)
{
    if (geteuid() != root)
        GTEST_SKIP() << "only root can give files away";
    const OwnerRow rows[] = {
        {"one's own", root, otherUser, 01777, true},
        {"the owner's of a folder for all", otherUser, otherUser, 01777, false},
        {"somebody's, as in a folder for all", otherUser, root, 01777, false},
        {"somebody's, where the folder does not protect names", otherUser, root, 0777, false},
        {"somebody's, where a group may write", otherUser, ordinaryUser, 0775, false},
        {"somebody's, where another owner alone writes", otherUser, ordinaryUser, 0755, false},
        {"the owner's, where only that one writes", otherUser, otherUser, 0755, false},
        {"somebody's, where only root writes", otherUser, root, 0755, true},
    };
    for (const OwnerRow &row : rows) {
        SCOPED_TRACE(row.what);
        const TemporaryFolder folder;
        LayLink(row);
        const auto error = ReplaceFile("public/link.ro", "after");
        EXPECT_EQ(ContentOf("a.ro"), row.isFollowed ? "after" : "before");
        EXPECT_EQ(error ? error->text : "", row.isFollowed ? "" : refusal);
    }
}

TEST(Target, OfAnOrdinaryUserIsNotWhereOthersCouldHaveLaidALink)
{
    if (geteuid() != root)
        GTEST_SKIP() << "only root can give files away";
    const OwnerRow rows[] = {
        {"one's own", ordinaryUser, otherUser, 01777, true},
        {"root's", root, otherUser, 01777, true},
        {"root's, where another owner alone writes", root, otherUser, 0755, true},
        {"somebody's, as in a folder for all", otherUser, root, 01777, false},
        {"somebody's, in one's own folder for all", otherUser, ordinaryUser, 0777, false},
        {"somebody's, where a group may write", otherUser, ordinaryUser, 0775, false},
        {"the owner's, where only that one writes", otherUser, otherUser, 0755, false},
        {"somebody's, where only root writes", otherUser, root, 0755, true},
        {"somebody's, where only the user writes", otherUser, ordinaryUser, 0755, true},
    };
    for (const OwnerRow &row : rows) {
        SCOPED_TRACE(row.what);
        const TemporaryFolder folder;
        LayLink(row);
        const AsOrdinaryUser user;
        const auto target = TargetOf("public/link.ro");
        EXPECT_EQ(target ? target->path.string() : target.error().text,
                  row.isFollowed ? "public/../a.ro" : refusal);
    }
}

} // namespace
} // namespace palmtools

#endif
