#include "palmtools/build_prc/build_prc.h"
#include "palmtools/pilrc/compiler.h"
#include "palmtools/pilrc/pilrc.h"
#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

std::string Golden(const std::string &name)
{
    return ContentOf(TEST_DATA "/palm/" + name);
}

void ExpectSoundCompilation(std::string_view script)
{
    const Compilation compilation = CompileScript(script);
    const auto &diagnostics = compilation.diagnostics;
    const bool lastIsError = !diagnostics.empty() && diagnostics.back().severity == Severity::error;
    ASSERT_EQ(compilation.failed, lastIsError);
    ASSERT_EQ(compilation.failed, compilation.resources.empty());
    for (const Diagnostic &diagnostic : diagnostics)
        ASSERT_GE(diagnostic.line, 1);
}

std::string Mutated(std::string bytes, std::mt19937 &random)
{
    for (auto count = random() % 3 + 1; count > 0 && !bytes.empty(); --count) {
        const std::size_t at = random() % bytes.size();
        const std::size_t length = std::min<std::size_t>(random() % 20, bytes.size() - at);
        switch (random() % 4) {
        case 0:
            bytes[at] = static_cast<char>(static_cast<unsigned char>(random() & 0xFF));
            break;
        case 1:
            bytes.erase(at, length);
            break;
        case 2:
            bytes.insert(at, bytes.substr(random() % bytes.size(), length));
            break;
        default:
            bytes[at] = "\"\\()-+0x \n\r/*"[random() % 13];
        }
    }
    return bytes;
}

TEST(Mutations, OfEveryLengthAreCompiledOrRefused)
{
    for (const std::string name : {"pulldown.rcp", "checkboxes.rcp", "datetime.rcp"}) {
        const std::string script = Golden(name);
        ASSERT_FALSE(script.empty());
        for (std::size_t length = 0; length <= script.size(); ++length) {
            ExpectSoundCompilation(std::string_view(script).substr(0, length));
            if (HasFatalFailure())
                FAIL() << name << " cut at " << length;
        }
    }
}

TEST(Mutations, OfScriptsAreCompiledOrRefused)
{
    std::mt19937 random(20240229);
    for (const std::string name : {"tentypes.rcp", "escapes.rcp", "latin1.rcp"}) {
        const std::string script = Golden(name);
        ASSERT_FALSE(script.empty());
        for (int round = 0; round < 1000; ++round) {
            ExpectSoundCompilation(Mutated(script, random));
            if (HasFatalFailure())
                FAIL() << name << ", round " << round;
        }
    }
}

TEST(Mutations, LeaveFilesOnlyOfGoodRuns)
{
    const TemporaryFolder folder;
    std::mt19937 random(1904);
    const std::string script = Golden("tentypes.rcp");
    int refused = 0;
    for (int round = 0; round < 300; ++round) {
        WriteContent("a.rcp", Mutated(script, random));
        const ToolRun run = RunTool(RunPilrc, {"-ro", "-q", "a.rcp"});
        ASSERT_TRUE(run.status == 0 || run.status == 1);
        ASSERT_EQ(folder.Names(), run.status == 0 ? "a.rcp a.ro " : "a.rcp ");
        refused += run.status;
        std::filesystem::remove("a.ro");
    }
    EXPECT_GT(refused, 0);
    EXPECT_LT(refused, 300);
}

TEST(Mutations, OfResourceFilesAreBuiltOrRefused)
{
    const TemporaryFolder folder;
    std::mt19937 random(2040);
    const std::string resources = Golden("text.ro");
    ASSERT_FALSE(resources.empty());
    int refused = 0;
    for (int round = 0; round < 600; ++round) {
        // The front half of the rounds hits the header and the entries.
        const std::size_t front = round < 300 ? 190 : resources.size();
        WriteContent("a.ro", Mutated(resources.substr(0, front), random) + resources.substr(front));
        const ToolRun run = RunTool(RunBuildPrc, {"a.prc", "name", "Wmpt", "a.ro"});
        ASSERT_TRUE(run.status == 0 || run.status == 1);
        ASSERT_EQ(folder.Names(), run.status == 0 ? "a.prc a.ro " : "a.ro ");
        refused += run.status;
        std::filesystem::remove("a.prc");
    }
    EXPECT_GT(refused, 0);
    EXPECT_LT(refused, 600);
}

} // namespace
} // namespace palmtools
