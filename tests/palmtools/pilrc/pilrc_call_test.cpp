#include "palmtools/pilrc/pilrc_call.h"

#include "palmtools/support.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#include <sys/sysmacros.h>
#endif

namespace palmtools {
namespace {

using Words = std::vector<std::string>;

TEST(PilrcCall, ReadsOptions)
{
    const auto call = ReadPilrcCall({"-Q", "-i", "-v", "-RO", "-v", "-I", "b/", "a.rcp"});
    ASSERT_TRUE(call);
    EXPECT_TRUE(call->quiet);
    EXPECT_EQ(call->style, MessageStyle::microsoft);
    EXPECT_EQ(call->folders, (Words{"-v", "b/"}));
    EXPECT_EQ(call->script, "a.rcp");
    EXPECT_EQ(call->output, "a.ro");

    const auto plain = ReadPilrcCall({"-ro", "a.rcp"});
    ASSERT_TRUE(plain);
    EXPECT_FALSE(plain->quiet);
    EXPECT_EQ(plain->style, MessageStyle::gnu);
    EXPECT_TRUE(plain->folders.empty());
}

TEST(PilrcCall, IsRefused)
{
    const std::string missing = "option '-ro' is missing; resources are written to one file only";
    const struct {
        const char *what;
        Words arguments;
        std::string text;
    } rows[] = {
        {"many small files", {"a.rcp"}, missing},
        {"even when quiet", {"-q", "a.rcp", "b.ro"}, missing},
        {"no script", {"-ro"}, "the script is missing"},
        {"unknown", {"-ro", "-x", "a.rcp"}, "unknown option '-x'"},
        {"a lone minus", {"-ro", "-", "a.rcp"}, "unknown option '-'"},
        {"two of them", {"-ro", "--", "a.rcp"}, "unknown option '--'"},
        {"no short help", {"-h"}, "unknown option '-h'"},
        {"a longer name", {"-rox", "a.rcp"}, "unknown option '-rox'"},
        {"an empty one is no option", {"", "a.rcp"}, missing},
        {"no folder", {"-ro", "-I"}, "option '-I' lacks its argument"},
        {"no output", {"-ro", "-o"}, "option '-o' lacks its argument"},
        {"three plain arguments", {"-ro", "a.rcp", "b.ro", "c"}, "too many arguments"},
        {"an option behind the script", {"-ro", "a.rcp", "b.ro", "-q"}, "too many arguments"},
        {"two outputs", {"-ro", "-o", "b.ro", "a.rcp", "c.ro"}, "too many arguments"},
        {"two options of them", {"-ro", "-o", "b.ro", "-o", "c.ro", "a.rcp"}, "too many arguments"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        const auto call = ReadPilrcCall(row.arguments);
        ASSERT_FALSE(call);
        EXPECT_EQ(call.error().text, row.text);
    }
}

TEST(PilrcCall, EndsOptionsAtTheScript)
{
    const auto call = ReadPilrcCall({"-ro", "a.rcp", "-q"});
    ASSERT_TRUE(call);
    EXPECT_FALSE(call->quiet);
    EXPECT_EQ(call->output, "-q.ro");
}

TEST(PilrcCall, AsksForHelpOrTheVersion)
{
    EXPECT_EQ(ReadPilrcCall({"--help"})->wish, Wish::help);
    EXPECT_EQ(ReadPilrcCall({"-ro", "--VERSION"})->wish, Wish::version);
    EXPECT_EQ(ReadPilrcCall({"--help", "--version", "-x"})->wish, Wish::help);
    EXPECT_FALSE(ReadPilrcCall({"-x", "--help"}));
    EXPECT_FALSE(ReadPilrcCall({"-ro", "a.rcp", "b.ro", "--help"}));
}

TEST(PilrcCall, TellsWhereTheOutputGoes)
{
    const struct {
        const char *what, *script, *asked, *output;
    } rows[] = {
        {"beside the script", "/a/b/Survey.rcp", ".", "/a/b/Survey.ro"},
        {"in any case", "Survey.RcP", ".", "Survey.ro"},
        {"another ending stays", "x.txt", ".", "x.txt.ro"},
        {"no ending", "x", ".", "x.ro"},
        {"only the last one goes", "x.rcp.rcp", ".", "x.rcp.ro"},
        {"nothing but the ending", ".rcp", ".", ".ro"},
        {"nothing else is taken off", "xrcp", ".", "xrcp.ro"},
        {"asked for, with an ending", "a.rcp", "b.bin", "b.bin"},
        {"without an ending", "a.rcp", "b", "b.ro"},
        {"a folder is not recognised", "a.rcp", "sub", "sub.ro"},
        {"a dot in a folder does not count", "a.rcp", "v1.0/b", "v1.0/b.ro"},
        {"behind a backslash", "a.rcp", "v1.0\\b", "v1.0\\b.ro"},
        {"an ending in a folder", "a.rcp", "sub/b.ro", "sub/b.ro"},
        {"a hidden file has a dot", "a.rcp", ".b", ".b"},
        {"a dot in a folder is no wish for the usual place", "a.rcp", "./b", "./b.ro"},
        {"nor are two", "a.rcp", "..", ".."},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(ResourceFileOf(row.script, row.asked), row.output);
        const auto plain = ReadPilrcCall({"-ro", row.script, row.asked});
        const auto option = ReadPilrcCall({"-O", row.asked, "-ro", row.script});
        ASSERT_TRUE(plain && option);
        EXPECT_EQ(plain->output, row.output);
        EXPECT_EQ(option->output, row.output);
    }
}

#ifndef _WIN32

TEST(PilrcCall, AddsNoEndingToWhatIsWrittenInto)
{
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    std::filesystem::create_symlink("pipe", "link");
    std::filesystem::create_directory("sub");
    WriteContent("file", "");
    EXPECT_EQ(ResourceFileOf("a.rcp", "pipe"), "pipe");
    EXPECT_EQ(ResourceFileOf("a.rcp", "link"), "link");
    EXPECT_EQ(ResourceFileOf("a.rcp", "sub/../pipe"), "sub/../pipe");
    EXPECT_EQ(ResourceFileOf("a.rcp", "sub"), "sub.ro");
    EXPECT_EQ(ResourceFileOf("a.rcp", "file"), "file.ro");
    EXPECT_EQ(ResourceFileOf("pipe", "."), "pipe.ro");
}

TEST(PilrcCall, AddsNoEndingToADevice)
{
    const TemporaryFolder folder;
    const dev_t nullDevice = makedev(1, 3);
    if (mknod("null", S_IFCHR | 0600, nullDevice) != 0)
        GTEST_SKIP() << "only root can make a device";
    EXPECT_EQ(ResourceFileOf("a.rcp", "null"), "null");
}

#endif

} // namespace
} // namespace palmtools
