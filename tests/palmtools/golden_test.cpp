#include "palmtools/build_prc/build_prc.h"
#include "palmtools/build_prc/database_builder.h"
#include "palmtools/pilrc/compiler.h"
#include "palmtools/pilrc/pilrc.h"
#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

const std::filesystem::path data = TEST_DATA "/palm";

/// A line of expected.csv; no column that is used here has a comma or a quote in it.
struct Golden {
    std::string name, result, databaseName, type, creator, hidden, errorLine, warningLines;
};

std::vector<Golden> AllGolden()
{
    std::istringstream file(ContentOf(data / "expected.csv"));
    std::vector<Golden> all;
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
        std::istringstream columns(line);
        Golden golden;
        for (std::string *column :
             {&golden.name, &golden.result, &golden.databaseName, &golden.type, &golden.creator,
              &golden.hidden, &golden.errorLine, &golden.warningLines})
            std::getline(columns, *column, ',');
        all.push_back(golden);
    }
    return all;
}

/// The lines that the messages of a kind name, with a blank between them.
std::string LinesOf(const std::string &messages, const std::string &script, const std::string &kind)
{
    std::istringstream stream(messages);
    std::string lines;
    for (std::string message; std::getline(stream, message);) {
        if (message.compare(0, script.size() + 1, script + ":") != 0)
            return "no place: " + message;
        const std::string rest = message.substr(script.size() + 1);
        const std::string number = rest.substr(0, rest.find(':'));
        if (rest.find(": " + kind + ": ") == number.size())
            lines += (lines.empty() ? "" : " ") + number;
    }
    return lines;
}

void ExpectMade(const Golden &golden)
{
    std::vector<std::string> arguments = {"-t", golden.type, "--no-check-resources"};
    if (golden.hidden == "yes")
        arguments.emplace_back("--hidden");
    for (const std::string &argument :
         {golden.name + ".prc", golden.databaseName, golden.creator, golden.name + ".ro"})
        arguments.push_back(argument);
    const ToolRun run = RunTool(RunBuildPrc, arguments);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out + run.err, "");

    std::string made = ContentOf(golden.name + ".prc");
    std::string expected = ContentOf(data / (golden.name + ".prc"));
    ASSERT_EQ(made.size(), expected.size());
    for (std::string *bytes : {&made, &expected})
        bytes->replace(36, 8, 8, '\0'); // the moment of the run
    EXPECT_TRUE(made == expected);
}

TEST(Golden, ScriptsGiveTheFilesThatTheyMust)
{
    const auto all = AllGolden();
    EXPECT_EQ(all.size(), 27u);
    for (const Golden &golden : all) {
        SCOPED_TRACE(golden.name);
        const TemporaryFolder folder;
        const std::string script = golden.name + ".rcp";
        std::filesystem::copy_file(data / script, script);

        const ToolRun run = RunTool(RunPilrc, {"-ro", "-q", script});
        EXPECT_EQ(LinesOf(run.err, script, "warning"), golden.warningLines);
        EXPECT_EQ(LinesOf(run.err, script, "error"), golden.errorLine);
        if (golden.result == "refused") {
            EXPECT_EQ(run.status, 1);
            EXPECT_EQ(folder.Names(), script + " ");
            continue;
        }
        EXPECT_EQ(run.status, 0);
        EXPECT_TRUE(ContentOf(golden.name + ".ro") == ContentOf(data / (golden.name + ".ro")));
        ExpectMade(golden);
    }
}

TEST(Golden, ScriptsGiveTheirDatabasesWithoutFilesInBetween)
{
    for (const Golden &golden : AllGolden()) {
        SCOPED_TRACE(golden.name);
        const Compilation compilation = CompileScript(ContentOf(data / (golden.name + ".rcp")));
        ASSERT_EQ(compilation.failed, golden.result == "refused");
        if (compilation.failed)
            continue;
        auto header = HeaderOf({.name = golden.databaseName,
                                .type = golden.type,
                                .creator = golden.creator,
                                .hidden = golden.hidden == "yes"},
                               0);
        const auto resources = Sorted(ViewsOf(compilation.resources));
        ASSERT_TRUE(header && resources);
        const std::string expected = ContentOf(data / (golden.name + ".prc"));
        header->time = BigEndian32At(expected, 36);
        EXPECT_TRUE(*EncodeDatabase(*header, *resources) == expected);
    }
}

TEST(Golden, ResourceFilesDifferByTheirPathsOnly)
{
    const TemporaryFolder folder;
    for (const std::string name : {"tentypes", "longlist"}) {
        SCOPED_TRACE(name);
        const std::string source = (data / (name + ".rcp")).string();
        const std::string target = (folder.path() / "x.ro").string();
        EXPECT_EQ(RunTool(RunPilrc, {"-ro", source, target}).status, 0);
        EXPECT_TRUE(ContentOf("x.ro").substr(32) == ContentOf(data / (name + ".ro")).substr(32));
    }
}

} // namespace
} // namespace palmtools
