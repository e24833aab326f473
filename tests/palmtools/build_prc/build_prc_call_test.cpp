#include "palmtools/build_prc/build_prc_call.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

using ArgumentReader = std::vector<std::string>;

std::string Shown(const BuildPrcCall &call)
{
    const auto &[name, type, creator, hidden] = call.identity;
    return call.output + "|" + name + "|" + type + "|" + creator + "|" + call.input +
           (hidden ? "|hidden" : "") + (call.warnsAboutHeader ? "" : "|silent");
}

const struct {
    const char *what;
    ArgumentReader arguments;
    const char *call;
} calls[] = {
    {"as the designer calls it",
     {"-t", "kelp", "--hidden", "--no-check-resources", "o.prc", "n", "Wmpt", "a.ro"},
     "o.prc|n|kelp|Wmpt|a.ro|hidden"},
    {"plain", {"o.prc", "n", "Wmpt", "a.ro"}, "o.prc|n|appl|Wmpt|a.ro"},
    {"options only",
     {"-t", "kelp", "-c", "Wmpt", "-n", "n", "-o", "o.prc", "a.ro"},
     "o.prc|n|kelp|Wmpt|a.ro"},
    {"long names",
     {"--output", "o.prc", "--name", "n", "--creator", "Wmpt", "--type", "kelp", "a.ro"},
     "o.prc|n|kelp|Wmpt|a.ro"},
    {"with an equals sign",
     {"--output=o.prc", "--name=n=m", "--creator=Wmpt", "--type=kelp", "a.ro"},
     "o.prc|n=m|kelp|Wmpt|a.ro"},
    {"empty values", {"--output=", "--name=", "--creator=", "--type=", "a.ro"}, "||||a.ro"},
    {"a value that looks like an option",
     {"-t", "-abc", "-n", "--hidden", "-c", "-c=d", "-o", "-o.prc", "a.ro"},
     "-o.prc|--hidden|-abc|-c=d|a.ro"},
    {"a name that looks like an option",
     {"o.prc", "--hidden", "Wmpt", "a.ro"},
     "o.prc|--hidden|appl|Wmpt|a.ro"},
    {"a name with a minus", {"o.prc", "-n", "-abc", "a.ro"}, "o.prc|-n|appl|-abc|a.ro"},
    {"an empty name", {"o.prc", "", "", "a.ro"}, "o.prc||appl||a.ro"},
    {"silent about the header",
     {"--no-check-header", "o.prc", "n", "Wmpt", "a.ro"},
     "o.prc|n|appl|Wmpt|a.ro|silent"},
    {"silent about all",
     {"--no-check", "o.prc", "n", "Wmpt", "a.ro"},
     "o.prc|n|appl|Wmpt|a.ro|silent"},
    {"the last type counts",
     {"-t", "abcd", "--type=efgh", "o.prc", "n", "Wmpt", "a.ro"},
     "o.prc|n|efgh|Wmpt|a.ro"},
};

TEST(BuildPrcCall, IsReadInEitherWay)
{
    for (const auto &row : calls) {
        SCOPED_TRACE(row.what);
        const auto call = ReadBuildPrcCall(row.arguments);
        ASSERT_TRUE(call) << call.error().text;
        EXPECT_EQ(Shown(*call), row.call);
    }
}

const std::string plain = "OUT, NAME, CREATOR and FILE.ro are required";
const std::string together = "options -o, -n and -c go together";
const struct {
    const char *what;
    ArgumentReader arguments;
    std::string text;
} refusedCalls[] = {
    {"nothing", {}, plain},
    {"no name", {"o.prc"}, plain},
    {"no creator", {"o.prc", "n"}, plain},
    {"no input", {"o.prc", "n", "Wmpt"}, "the resource file is missing"},
    {"two inputs", {"o.prc", "n", "Wmpt", "a.ro", "b.ro"}, "too many arguments"},
    {"an option behind", {"o.prc", "n", "Wmpt", "a.ro", "--hidden"}, "too many arguments"},
    {"unknown", {"-x", "o.prc", "n", "Wmpt", "a.ro"}, "unknown option '-x'"},
    {"another case", {"-T", "kelp", "o.prc", "n", "Wmpt", "a.ro"}, "unknown option '-T'"},
    {"a lone minus", {"-", "n", "Wmpt", "a.ro"}, "unknown option '-'"},
    {"two of them", {"--", "o.prc", "n", "Wmpt", "a.ro"}, "unknown option '--'"},
    {"a short one with an equals sign",
     {"-t=kelp", "o.prc", "n", "Wmpt", "a.ro"},
     "unknown option '-t=kelp'"},
    {"a short one and its value",
     {"-tkelp", "o.prc", "n", "Wmpt", "a.ro"},
     "unknown option '-tkelp'"},
    {"a flag has no value",
     {"--hidden=yes", "o.prc", "n", "Wmpt", "a.ro"},
     "unknown option '--hidden=yes'"},
    {"no value", {"-t"}, "option '-t' lacks its argument"},
    {"no value of a long one", {"--type"}, "option '--type' lacks its argument"},
    {"no output", {"-n", "n", "-c", "Wmpt", "a.ro"}, together},
    {"no name", {"-o", "o.prc", "-c", "Wmpt", "a.ro"}, together},
    {"no creator", {"-o", "o.prc", "-n", "n", "a.ro"}, together},
    {"half and half", {"-o", "o.prc", "n", "Wmpt", "a.ro"}, together},
    {"options and no input",
     {"-o", "o.prc", "-n", "n", "-c", "Wmpt"},
     "the resource file is missing"},
    {"options and two inputs",
     {"-o", "o.prc", "-n", "n", "-c", "Wmpt", "a.ro", "b.ro"},
     "too many arguments"},
};

TEST(BuildPrcCall, IsRefused)
{
    for (const auto &row : refusedCalls) {
        SCOPED_TRACE(row.what);
        const auto call = ReadBuildPrcCall(row.arguments);
        ASSERT_FALSE(call);
        EXPECT_EQ(call.error().text, row.text);
    }
}

TEST(BuildPrcCall, AsksForHelpOrTheVersion)
{
    EXPECT_EQ(ReadBuildPrcCall({"--help"})->wish, Wish::help);
    EXPECT_EQ(ReadBuildPrcCall({"--hidden", "--version", "-x"})->wish, Wish::version);
    EXPECT_FALSE(ReadBuildPrcCall({"-x", "--help"}));
}

} // namespace
} // namespace palmtools
