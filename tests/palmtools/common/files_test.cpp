#include "palmtools/common/files.h"

#include "palmtools/support.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#endif

namespace palmtools {
namespace {

TEST(Files, AreReadWhole)
{
    const TemporaryFolder folder;
    for (const std::size_t size : {0u, 1u, 65535u, 65536u, 65537u, 300000u}) {
        SCOPED_TRACE(size);
        const std::string bytes = Repeated("\r\n\x1A", size / 3 + 1).substr(0, size);
        WriteContent("a.rcp", bytes);
        const auto read = ReadFile("a.rcp");
        ASSERT_TRUE(read);
        EXPECT_EQ(*read, bytes);
    }
}

TEST(Files, ThatCannotBeReadAreTold)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory("folder");
    for (const std::string path : {"missing.rcp", "folder", "missing/a.rcp", ""}) {
        SCOPED_TRACE(path);
        const auto read = ReadFile(path);
        ASSERT_FALSE(read);
        EXPECT_EQ(read.error().file, path);
        EXPECT_EQ(read.error().text.substr(0, 16), "cannot be read: ");
    }
}

TEST(Files, ThatAreTooLargeAreTold)
{
    const TemporaryFolder folder;
    WriteContent("a.rcp", "");
    std::filesystem::resize_file("a.rcp", largestFile);
    const auto largest = ReadFile("a.rcp");
    ASSERT_TRUE(largest);
    EXPECT_EQ(largest->size(), largestFile);
    std::filesystem::resize_file("a.rcp", largestFile + 1);
    const auto larger = ReadFile("a.rcp");
    ASSERT_FALSE(larger);
    EXPECT_EQ(larger.error().text, "cannot be read: it is larger than 64 MiB");
}

TEST(Files, AreMadeAndReplaced)
{
    const TemporaryFolder folder;
    const std::string bytes = Repeated(std::string("\r\n\0", 3), 50000);
    EXPECT_FALSE(ReplaceFile("a.ro", bytes));
    EXPECT_EQ(ContentOf("a.ro"), bytes);
    EXPECT_FALSE(ReplaceFile("a.ro", "shorter"));
    EXPECT_EQ(ContentOf("a.ro"), "shorter");
    EXPECT_FALSE(ReplaceFile(folder.path() / "b.ro", ""));
    EXPECT_EQ(ContentOf("b.ro"), "");
    EXPECT_EQ(folder.Names(), "a.ro b.ro ");
}

TEST(Files, MayHaveTheLongestName)
{
    const TemporaryFolder folder;
    const std::string name = std::string(251, 'n').append(".prc");
    EXPECT_FALSE(ReplaceFile(name, "a"));
    EXPECT_EQ(ContentOf(name), "a");
}

TEST(Files, DoNotOverwriteUnfinishedOnes)
{
    const TemporaryFolder folder;
    const std::string name = "palmtools-0123456789abcdef.new";
    WriteContent(name, "another run");
    EXPECT_FALSE(ReplaceFile("a.ro", "a"));
    EXPECT_EQ(ContentOf(name), "another run");
    EXPECT_EQ(folder.Names(), "a.ro " + name + " ");
}

TEST(Files, LeaveNothingWhenTheyCannotBeMade)
{
    const TemporaryFolder folder;
    std::filesystem::create_directories("taken.ro/inner");
    WriteContent("file", "");
    for (const std::string path : {"missing/a.ro", "taken.ro", "file/a.ro"}) {
        SCOPED_TRACE(path);
        const auto error = ReplaceFile(path, "a");
        ASSERT_TRUE(error);
        EXPECT_EQ(error->file, path);
        EXPECT_EQ(error->text.substr(0, 19), "cannot be written: ");
        EXPECT_EQ(folder.Names(), "file taken.ro ");
        EXPECT_TRUE(std::filesystem::is_directory("taken.ro/inner"));
    }
}

#ifndef _WIN32

/// Makes the disk look full to this process: no file may grow beyond a size.
class FullDisk
{
public:
    explicit FullDisk(rlim_t size)
    {
        m_signal = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {size, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }

private:
    rlimit m_before{};
    void (*m_signal)(int);
};

TEST(Files, AreReadFromAPipe)
{
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo("pipe.rcp", 0600), 0);
    const std::string bytes = Repeated("0123456789", 20000);
    std::thread writer([&] { WriteContent("pipe.rcp", bytes); });
    const auto read = ReadFile("pipe.rcp");
    writer.join();
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, bytes);
}

TEST(Files, WithoutAnEndAreTold)
{
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo("endless.rcp", 0600), 0);
    std::signal(SIGPIPE, SIG_IGN);
    std::thread writer([] {
        std::ofstream pipe("endless.rcp");
        for (const std::string bytes(1 << 16, 'x'); pipe << bytes;) {
        }
    });
    const auto read = ReadFile("endless.rcp");
    writer.join(); // only because nobody reads on
    std::signal(SIGPIPE, SIG_DFL);
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().text, "cannot be read: it is larger than 64 MiB");
}

TEST(Files, StayAsTheyWereWhenTheDiskIsFull)
{
    const TemporaryFolder folder;
    WriteContent("a.ro", "before");
    for (const std::size_t size : {1001u, 5000u, 1000000u}) {
        SCOPED_TRACE(size);
        std::optional<Error> error;
        {
            const FullDisk disk(1000);
            error = ReplaceFile("a.ro", std::string(size, 'x'));
        }
        ASSERT_TRUE(error);
        EXPECT_EQ(error->text.substr(0, 19), "cannot be written: ");
        EXPECT_EQ(folder.Names(), "a.ro ");
        EXPECT_EQ(ContentOf("a.ro"), "before");
    }
    const FullDisk disk(1000);
    EXPECT_FALSE(ReplaceFile("a.ro", std::string(1000, 'x')));
}

#endif

} // namespace
} // namespace palmtools
