#include "palmtools/build_prc/build_prc.h"

#include "palmtools/build_prc/database_builder.h"
#include "palmtools/build_prc/local_zone.h"
#include "palmtools/support.h"

#include <gtest/gtest.h>

#include <ctime>

namespace palmtools {
namespace {

Bytes ResourceFile()
{
    return *EncodeDatabase({.name = "ignored", .type = FourBytesOf("RESO")},
                           {{FourBytesOf("tver"), 1, "1.0"},
                            {FourBytesOf("flds"), 9, "ab"},
                            {FourBytesOf("flds"), 8, "c"}});
}

/// A folder with a resource file a.ro.
class BuildPrc : public testing::Test
{
protected:
    BuildPrc() { WriteContent("a.ro", ResourceFile()); }

    ToolRun Build(const std::string &name, const std::string &type = "kelp",
                  const std::string &creator = "Wmpt", const std::string &input = "a.ro") const
    {
        return RunTool(RunBuildPrc, {"-t", type, "--hidden", "o.prc", name, creator, input});
    }

    const TemporaryFolder m_folder;
};

TEST_F(BuildPrc, WritesADatabase)
{
    const LocalZone zone("EAST-5:30");
    constexpr std::int64_t shift = 5 * 3600 + 1800 + 2082844800;
    const std::int64_t before = std::time(nullptr) + shift;
    const ToolRun run = Build("the name");
    const std::int64_t after = std::time(nullptr) + shift;
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out + run.err, "");
    EXPECT_EQ(m_folder.Names(), "a.ro o.prc ");

    const std::string bytes = ContentOf("o.prc");
    ASSERT_GT(bytes.size(), 44u);
    EXPECT_EQ(bytes.substr(0, 36), "the name" + std::string(24, '\0') + FromHex("0101 0001"));
    EXPECT_GE(BigEndian32At(bytes, 36), before);
    EXPECT_LE(BigEndian32At(bytes, 36), after);
    EXPECT_EQ(BigEndian32At(bytes, 40), BigEndian32At(bytes, 36));
    EXPECT_EQ(bytes.substr(44), std::string(16, '\0') + "kelpWmpt" + std::string(8, '\0') +
                                    FromHex("0003 666C6473 0008 0000006E 666C6473 0009 0000006F"
                                            "74766572 0001 00000071 0000") +
                                    "cab1.0");
}

TEST_F(BuildPrc, MeansTheSameInBothWays)
{
    const std::vector<std::vector<std::string>> calls = {
        {"o.prc", "n", "Wmpt", "a.ro"},
        {"-o", "o.prc", "-n", "n", "-c", "Wmpt", "a.ro"},
        {"--no-check", "--output=o.PRC", "--name=n", "--creator=Wmpt", "--type=appl", "a.ro"}};
    const std::string expected =
        *EncodeDatabase({.name = "n", .type = FourBytesOf("appl"), .creator = FourBytesOf("Wmpt")},
                        *Sorted(*DecodeDatabase(ContentOf("a.ro"))));
    for (const auto &arguments : calls) {
        SCOPED_TRACE(arguments.front());
        const ToolRun run = RunTool(RunBuildPrc, arguments);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.out + run.err, "");
        const std::string written = arguments.size() == 6 ? "o.PRC" : "o.prc";
        EXPECT_EQ(ContentOf(written).replace(36, 8, 8, '\0'), expected);
        std::filesystem::remove(written);
    }
}

TEST_F(BuildPrc, ReadsDatabasesToo)
{
    ASSERT_EQ(Build("first").status, 0);
    const std::string first = ContentOf("o.prc");
    ASSERT_EQ(Build("other", "kelp", "Wmpt", "o.prc").status, 0);
    EXPECT_EQ(ContentOf("o.prc").substr(0, 5), "other");
    EXPECT_EQ(ContentOf("o.prc").substr(44), first.substr(44));
}

TEST_F(BuildPrc, TakesNamesAsTheyAre)
{
    const struct {
        const char *what;
        std::string given, name;
    } rows[] = {
        {"31 bytes", std::string(31, 'n'), std::string(31, 'n')},
        {"windows-1252", "caf\xE9", "caf\xE9"},
        {"UTF-8", "caf\xC3\xA9 \xE2\x82\xAC", "caf\xE9 \x80"},
        {"31 characters of UTF-8", Repeated("\xC3\xA9", 31), std::string(31, '\xE9')},
        {"what looks like an option", "--help", "--help"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Build(row.given).status, 0);
        EXPECT_EQ(ContentOf("o.prc").substr(0, 32),
                  row.name + std::string(32 - row.name.size(), '\0'));
    }
}

TEST_F(BuildPrc, RefusesWrongValues)
{
    WriteContent("o.prc", "before");
    const struct {
        const char *what;
        std::string name, type, creator, input, message;
    } rows[] = {
        {"32 bytes", std::string(32, 'n'), "kelp", "Wmpt", "a.ro",
         "build-prc: the database name has 32 bytes, more than 31\n"},
        {"a character that is lacking", "\xD0\x96", "kelp", "Wmpt", "a.ro",
         "build-prc: the database name has a character that the handheld lacks: U+0416\n"},
        {"a short type", "n", "kel", "Wmpt", "a.ro",
         "build-prc: the type 'kel' is not 4 bytes long\n"},
        {"a long type", "n", "kelpy", "Wmpt", "a.ro",
         "build-prc: the type 'kelpy' is not 4 bytes long\n"},
        {"an empty type", "n", "", "Wmpt", "a.ro", "build-prc: the type '' is not 4 bytes long\n"},
        {"a short creator", "n", "kelp", "Wmp", "a.ro",
         "build-prc: the creator 'Wmp' is not 4 bytes long\n"},
        {"a long creator", "n", "kelp", "Wmpts", "a.ro",
         "build-prc: the creator 'Wmpts' is not 4 bytes long\n"},
        {"another ending", "n", "kelp", "Wmpt", "a.rcp",
         "a.rcp: the name of a resource file must end in .ro or .prc\n"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        const ToolRun run = Build(row.name, row.type, row.creator, row.input);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.err, row.message);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(ContentOf("o.prc"), "before");
    }
    EXPECT_EQ(RunTool(RunBuildPrc, {"o.pdb", "n", "Wmpt", "a.ro"}).err,
              "o.pdb: the name of a database must end in .prc\n");
    EXPECT_EQ(m_folder.Names(), "a.ro o.prc ");
}

TEST_F(BuildPrc, RefusesDamagedResourceFiles)
{
    WriteContent("o.prc", "before");
    const auto damaged = [](std::size_t offset, std::string_view hex) {
        const Bytes patch = FromHex(hex);
        return ResourceFile().replace(offset, patch.size(), patch);
    };
    const struct {
        const char *what;
        Bytes bytes;
        std::string text;
    } rows[] = {
        {"short", ResourceFile().substr(0, 77), "shorter than the header of a database"},
        {"no resource database", damaged(32, "0000"), "no resource database"},
        {"entries cut off", ResourceFile().substr(0, 107), "shorter than its entries"},
        {"an offset inside of the entries", damaged(84, "00000000"),
         "entry 1 begins inside of the entries"},
        {"an offset beyond the end", damaged(104, "00010000"),
         "entry 3 begins beyond the end of the file"},
        {"offsets that go down", damaged(94, "00000074"),
         "entry 2 begins behind the one that follows it"},
        {"one resource twice", damaged(92, "0008"), "resource 'flds' 8 is there twice"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        WriteContent("b.ro", row.bytes);
        const ToolRun run = Build("n", "kelp", "Wmpt", "b.ro");
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.err, "b.ro: " + row.text + "\n");
        EXPECT_EQ(ContentOf("o.prc"), "before");
    }
    EXPECT_EQ(m_folder.Names(), "a.ro b.ro o.prc ");
}

TEST_F(BuildPrc, WarnsAboutAnEmptyHeader)
{
    EXPECT_EQ(Build("").err, "build-prc: warning: the database name is empty\n");
    EXPECT_EQ(Build("n", "kelp", "").err, "build-prc: warning: the creator is empty\n");
    EXPECT_EQ(ContentOf("o.prc").substr(60, 8), std::string("kelp\0\0\0\0", 8));
    for (const std::string option : {"--no-check", "--no-check-header"}) {
        const ToolRun run = RunTool(RunBuildPrc, {option, "p.prc", "", "", "a.ro"});
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.err, "");
    }
    const ToolRun both = RunTool(RunBuildPrc, {"--no-check-resources", "p.prc", "", "", "a.ro"});
    EXPECT_EQ(both.status, 0);
    EXPECT_EQ(both.err, "build-prc: warning: the database name is empty\n"
                        "build-prc: warning: the creator is empty\n");
}

TEST_F(BuildPrc, TellsWhatItCannotReadOrWrite)
{
    ToolRun run = Build("n", "kelp", "Wmpt", "missing.ro");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err.substr(0, 28), "missing.ro: cannot be read: ");

    run = RunTool(RunBuildPrc, {"missing/o.prc", "n", "Wmpt", "a.ro"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err.substr(0, 34), "missing/o.prc: cannot be written: ");

    std::filesystem::create_directories("o.prc/inner");
    run = Build("n");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err.substr(0, 26), "o.prc: cannot be written: ");
    EXPECT_EQ(m_folder.Names(), "a.ro o.prc ");
}

TEST_F(BuildPrc, TellsHowToCallIt)
{
    const ToolRun help = RunTool(RunBuildPrc, {"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.err, "");
    EXPECT_EQ(help.out.substr(0, 17), "usage: build-prc ");

    const ToolRun version = RunTool(RunBuildPrc, {"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.err, "");
    EXPECT_EQ(version.out.substr(0, 10), "build-prc ");

    const std::vector<std::vector<std::string>> calls = {
        {}, {"-x"}, {"o.prc", "n", "Wmpt"}, {"-o", "o.prc", "a.ro"}};
    for (const auto &arguments : calls) {
        const ToolRun run = RunTool(RunBuildPrc, arguments);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err.substr(0, 11), "build-prc: ");
        EXPECT_NE(run.err.find("\nusage: build-prc "), run.err.npos);
    }
    EXPECT_EQ(m_folder.Names(), "a.ro ");
}

} // namespace
} // namespace palmtools
