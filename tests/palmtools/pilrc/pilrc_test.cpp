#include "palmtools/pilrc/pilrc.h"

#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

const std::string script = "VERSION \"1.0\"\nHEX \"ab\" 7 1 2\n";
const std::string wrong = "VERSION \"1.0\"\nVERSION ID 2\n";

bool Contains(const std::string &text, const std::string &part)
{
    return text.find(part) != text.npos;
}

TEST(Pilrc, WritesAResourceFile)
{
    const TemporaryFolder folder;
    WriteContent("a.rcp", script);
    const ToolRun run = RunTool(RunPilrc, {"-ro", "a.rcp"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, "a.rcp\ntver 1: 4 bytes\nab 7: 2 bytes\na.ro\n");
    EXPECT_EQ(folder.Names(), "a.rcp a.ro ");
    EXPECT_EQ(ContentOf("a.ro"),
              "a.ro" + std::string(28, '\0') + FromHex("0001 0001 ADC0BEA0 ADC0BEA0") +
                  std::string(16, '\0') + "RESOpRES" + std::string(8, '\0') +
                  FromHex("0002 74766572 0001 00000064 61620000 0007 00000068 0000") +
                  FromHex("312E3000 0102"));
}

TEST(Pilrc, IsQuietWhenAsked)
{
    const TemporaryFolder folder;
    WriteContent("a.rcp", script);
    const ToolRun run = RunTool(RunPilrc, {"-q", "-ro", "a.rcp"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out + run.err, "");
}

TEST(Pilrc, NamesTheFileAfterThePathItWasGiven)
{
    const TemporaryFolder folder;
    std::filesystem::create_directories("a-folder-of-a-name/and-another");
    const std::string path = "a-folder-of-a-name/and-another/s";
    WriteContent(path + ".rcp", script);
    EXPECT_EQ(RunTool(RunPilrc, {"-ro", path + ".rcp"}).status, 0);
    EXPECT_EQ(ContentOf(path + ".ro").substr(0, 32), path.substr(0, 31) + std::string(1, '\0'));
}

TEST(Pilrc, LooksForTheScriptInFolders)
{
    const TemporaryFolder folder;
    for (const std::string name : {"one", "two", "three"})
        std::filesystem::create_directory(name);
    WriteContent("two/a.rcp", wrong);
    WriteContent("three/a.rcp", script);

    ToolRun run = RunTool(RunPilrc, {"-ro", "-I", "one", "-I", "two", "-I", "three", "a.rcp"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "two/a.rcp:2: error: text expected, not 'end of file'\n");
    EXPECT_EQ(RunTool(RunPilrc, {"-ro", "-I", "two/", "a.rcp"}).err, run.err);

    run = RunTool(RunPilrc, {"-ro", "-I", "three", "a.rcp"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out.substr(0, 12), "three/a.rcp\n");
    EXPECT_EQ(folder.Names(), "a.ro one three two ");
    EXPECT_EQ(ContentOf("a.ro").substr(0, 5), std::string("a.ro\0", 5));

    WriteContent("a.rcp", script);
    EXPECT_EQ(RunTool(RunPilrc, {"-ro", "-I", "two", "a.rcp"}).out.substr(0, 6), "a.rcp\n");
}

TEST(Pilrc, WritesWhereItIsTold)
{
    const TemporaryFolder folder;
    WriteContent("a.rcp", script);
    EXPECT_EQ(RunTool(RunPilrc, {"-ro", "a.rcp", "b"}).status, 0);
    EXPECT_EQ(RunTool(RunPilrc, {"-ro", "-o", "c.bin", "a.rcp"}).status, 0);
    EXPECT_EQ(folder.Names(), "a.rcp b.ro c.bin ");
}

TEST(Pilrc, LeavesNothingAfterAnError)
{
    const TemporaryFolder folder;
    WriteContent("a.rcp", wrong);
    ToolRun run = RunTool(RunPilrc, {"-ro", "a.rcp"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "a.rcp:2: error: text expected, not 'end of file'\n");
    EXPECT_EQ(folder.Names(), "a.rcp ");

    WriteContent("a.ro", "before");
    run = RunTool(RunPilrc, {"-V", "-ro", "a.rcp"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "a.rcp(2): error : text expected, not 'end of file'\n");
    EXPECT_EQ(ContentOf("a.ro"), "before");
    EXPECT_EQ(folder.Names(), "a.rcp a.ro ");
}

TEST(Pilrc, WritesInSpiteOfWarnings)
{
    const TemporaryFolder folder;
    WriteContent("a.rcp", "/*/**/*/VERSION \"1\"");
    ToolRun run = RunTool(RunPilrc, {"-q", "-ro", "a.rcp"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "a.rcp:1: warning: comment inside a comment\n");
    EXPECT_EQ(folder.Names(), "a.rcp a.ro ");

    WriteContent("a.rcp", "/*/**/*/VERSION ID 2");
    run = RunTool(RunPilrc, {"-q", "-V", "-ro", "a.rcp"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "a.rcp(1): warning : comment inside a comment\n"
                       "a.rcp(1): error : text expected, not 'end of file'\n");
}

TEST(Pilrc, ShowsAHundredWarningsAndCountsTheOthers)
{
    const TemporaryFolder folder;
    const std::string warning = "a.rcp:1: warning: comment inside a comment\n";
    const auto errorsOf = [](std::size_t warnings, const std::string &statement) {
        WriteContent("a.rcp", "/*" + Repeated("/**/", warnings) + "*/" + statement);
        return RunTool(RunPilrc, {"-q", "-ro", "a.rcp"}).err;
    };
    EXPECT_EQ(errorsOf(100, "VERSION \"1\""), Repeated(warning, 100));
    EXPECT_EQ(errorsOf(101, "VERSION \"1\""),
              Repeated(warning, 100) + "pilrc: 1 more warning is not shown\n");
    EXPECT_EQ(errorsOf(5000, "5"), Repeated(warning, 100) +
                                       "a.rcp:1: error: statement expected, not '5'\n" +
                                       "pilrc: 4900 more warnings are not shown\n");
}

TEST(Pilrc, TellsWhatItCannotReadOrWrite)
{
    const TemporaryFolder folder;
    ToolRun run = RunTool(RunPilrc, {"-ro", "-I", "none", "a.rcp"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err.substr(0, 29), "pilrc: a.rcp cannot be read: ");

    WriteContent("a.rcp", script);
    run = RunTool(RunPilrc, {"-ro", "a.rcp", "missing/a.ro"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err.substr(0, 39), "pilrc: missing/a.ro cannot be written: ");

    std::filesystem::create_directories("a.ro/inner");
    run = RunTool(RunPilrc, {"-ro", "a.rcp"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err.substr(0, 31), "pilrc: a.ro cannot be written: ");
    EXPECT_EQ(folder.Names(), "a.rcp a.ro ");
}

TEST(Pilrc, TellsHowToCallIt)
{
    const ToolRun nothing = RunTool(RunPilrc, {});
    EXPECT_EQ(nothing.status, 1);
    EXPECT_EQ(nothing.err, "");
    EXPECT_EQ(nothing.out.substr(0, 13), "usage: pilrc ");

    const ToolRun help = RunTool(RunPilrc, {"--HELP"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.err, "");
    EXPECT_EQ(help.out, nothing.out);

    const ToolRun version = RunTool(RunPilrc, {"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.err, "");
    EXPECT_EQ(version.out.substr(0, 6), "pilrc ");
    EXPECT_TRUE(Contains(version.out, "."));
}

TEST(Pilrc, RefusesWrongCalls)
{
    const TemporaryFolder folder;
    WriteContent("a.rcp", script);
    const std::vector<std::vector<std::string>> calls = {
        {"a.rcp"}, {"-ro"}, {"-ro", "-x", "a.rcp"}, {"-ro", "-I"}, {"-ro", "a.rcp", "b", "c"}};
    for (const auto &arguments : calls) {
        SCOPED_TRACE(arguments.back());
        const ToolRun run = RunTool(RunPilrc, arguments);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err.substr(0, 7), "pilrc: ");
        EXPECT_TRUE(Contains(run.err, "\nusage: pilrc "));
        EXPECT_EQ(folder.Names(), "a.rcp ");
    }
}

} // namespace
} // namespace palmtools
