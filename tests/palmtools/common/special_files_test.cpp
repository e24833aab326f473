#include "palmtools/common/files.h"
#include "palmtools/support.h"

#include <gtest/gtest.h>

#ifndef _WIN32

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <thread>
#include <unistd.h>

namespace palmtools {
namespace {

namespace fs = std::filesystem;

TEST(SpecialFiles, APipeIsWrittenInto)
{
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo("pipe.ro", 0600), 0);
    const std::string bytes = Repeated("0123456789", 20000);
    std::string read;
    std::thread reader([&] { read = ContentOf("pipe.ro"); });
    const auto error = ReplaceFile("pipe.ro", bytes);
    reader.join();
    EXPECT_FALSE(error);
    EXPECT_EQ(read, bytes);
    EXPECT_TRUE(fs::is_fifo("pipe.ro"));
    EXPECT_EQ(folder.Names(), "pipe.ro ");
}

TEST(SpecialFiles, ADeviceIsWrittenInto)
{
    const TemporaryFolder folder;
    const dev_t nullDevice = makedev(1, 3);
    if (mknod("null.ro", S_IFCHR | 0600, nullDevice) != 0)
        GTEST_SKIP() << "only root can make a device";
    const int opened = open("null.ro", O_WRONLY | O_CLOEXEC);
    if (opened < 0)
        GTEST_SKIP() << "the temporary folder allows no devices";
    close(opened);
    EXPECT_FALSE(ReplaceFile("null.ro", "a"));
    EXPECT_TRUE(fs::is_character_file("null.ro"));
    EXPECT_EQ(folder.Names(), "null.ro ");
}

TEST(SpecialFiles, AFolderIsRefused)
{
    const TemporaryFolder folder;
    fs::create_directory("a.ro");
    fs::create_directory_symlink("a.ro", "link.ro");
    for (const std::string path : {"a.ro", "link.ro", "a.ro/"}) {
        SCOPED_TRACE(path);
        const auto error = ReplaceFile(path, "a");
        ASSERT_TRUE(error);
        EXPECT_EQ(error->text, "cannot be written: Is a directory");
        EXPECT_EQ(error->file, path);
    }
    EXPECT_TRUE(fs::is_empty("a.ro"));
    EXPECT_TRUE(fs::is_symlink("link.ro"));
}

TEST(SpecialFiles, LinksAreFollowedToTheirEnd)
{
    const TemporaryFolder folder;
    fs::create_directories("one/two");
    WriteContent("one/a.ro", "before");
    fs::create_symlink("../a.ro", "one/two/middle.ro");
    fs::create_symlink(folder.path() / "one/two/middle.ro", "first.ro");
    EXPECT_FALSE(ReplaceFile("first.ro", "after"));
    EXPECT_TRUE(fs::is_symlink("first.ro"));
    EXPECT_TRUE(fs::is_symlink("one/two/middle.ro"));
    EXPECT_EQ(ContentOf("one/a.ro"), "after");
    EXPECT_EQ(folder.Names(), "first.ro one ");

    fs::create_symlink("one/new.ro", "dangling.ro");
    EXPECT_FALSE(ReplaceFile("dangling.ro", "new"));
    EXPECT_TRUE(fs::is_symlink("dangling.ro"));
    EXPECT_EQ(ContentOf("one/new.ro"), "new");
}

TEST(SpecialFiles, LinksThatGoInCirclesAreAnError)
{
    const TemporaryFolder folder;
    fs::create_symlink("b.ro", "a.ro");
    fs::create_symlink("a.ro", "b.ro");
    const auto error = ReplaceFile("a.ro", "a");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->text, "cannot be written: too many links follow each other");
    EXPECT_EQ(folder.Names(), "a.ro b.ro ");
}

TEST(SpecialFiles, ALinkMayLeadToWhatIsOpenAndHasNoName)
{
    const TemporaryFolder folder;
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const std::string path = "/proc/self/fd/" + std::to_string(ends[1]);
    if (!fs::exists(path))
        GTEST_SKIP() << "the system does not show what is open";
    fs::create_symlink(path, "a.ro");
    EXPECT_FALSE(ReplaceFile("a.ro", "abc"));
    char read[8];
    EXPECT_EQ(::read(ends[0], read, sizeof read), 3);
    EXPECT_EQ(std::string(read, 3), "abc");
    EXPECT_EQ(folder.Names(), "a.ro ");
    close(ends[0]);
    close(ends[1]);
}

TEST(SpecialFiles, NewOnesHaveTheModeThatTheProcessGives)
{
    const TemporaryFolder folder;
    const mode_t before = umask(027);
    EXPECT_FALSE(ReplaceFile("a.ro", "a"));
    umask(before);
    EXPECT_EQ(fs::status("a.ro").permissions(), fs::perms(0640));
}

} // namespace
} // namespace palmtools

#endif
