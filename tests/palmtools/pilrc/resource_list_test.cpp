#include "palmtools/pilrc/resource_list.h"

#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

/// The warnings and the error that come of resources of these sizes, numbered from 1.
std::string Admitted(std::string_view type, const std::vector<std::uint64_t> &sizes)
{
    Warnings warnings;
    ScriptReader words("", warnings);
    ResourceList resources;
    std::string texts;
    try {
        std::uint16_t number = 0;
        for (const std::uint64_t size : sizes)
            resources.Admit(words, FourBytesOf(type), ++number, size);
    } catch (const ScriptError &error) {
        texts = std::string("error: ") + error.what();
    }
    for (const Diagnostic &warning : warnings.kept())
        texts += warning.text;
    return texts;
}

TEST(ResourceList, LimitsSizes)
{
    const struct {
        const char *what;
        std::uint64_t size;
        const char *text;
    } rows[] = {
        {"empty", 0, ""},
        {"last that is safe", 65000, ""},
        {"first that is not", 65001, "resource 'wxyz' 1 has 65001 bytes"},
        {"largest", 65535, "resource 'wxyz' 1 has 65535 bytes"},
        {"one more", 65536, "error: resource 'wxyz' 1 has 65536 bytes, more than 65535"},
        {"beyond 32 bits", 0x100000000,
         "error: resource 'wxyz' 1 has 4294967296 bytes, more than "
         "65535"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Admitted("wxyz", {row.size}), row.text);
    }
}

TEST(ResourceList, HasEachResourceOnce)
{
    const struct {
        const char *type, *text;
    } rows[] = {
        {"tFRM", "form 7 is there twice"},
        {"tSTL", "string table 7 is there twice"},
        {"fnav", "resource 'fnav' 7 is there twice"},
        {"ab", "resource 'ab' 7 is there twice"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.type);
        Warnings warnings;
        ScriptReader words("", warnings);
        ResourceList resources;
        resources.Add(words, {FourBytesOf(row.type), 7, "a"});
        resources.Add(words, {FourBytesOf(row.type), 8, "b"});
        resources.Add(words, {FourBytesOf("othr"), 7, "c"});
        try {
            resources.Add(words, {FourBytesOf(row.type), 7, "d"});
            ADD_FAILURE() << "was taken";
        } catch (const ScriptError &error) {
            EXPECT_STREQ(error.what(), row.text);
        }
        const auto kept = resources.TakeAll();
        ASSERT_EQ(kept.size(), 3u);
        EXPECT_EQ(kept[0].bytes + kept[1].bytes + kept[2].bytes, "abc");
    }
}

TEST(ResourceList, LimitsAllOfThemTogether)
{
    constexpr std::size_t count = 1040, size = 64000; // 548,864 bytes below 64 MiB
    std::vector<std::uint64_t> sizes(count, size);
    sizes.insert(sizes.end(), 548, 1000);
    sizes.push_back(864);
    const std::string warnings = Admitted("many", sizes);
    EXPECT_EQ(warnings, "");
    sizes.push_back(1);
    EXPECT_EQ(Admitted("many", sizes), "error: the resources are too large together for one file");
}

TEST(ResourceList, LimitsTheirNumber)
{
    EXPECT_EQ(Admitted("many", std::vector<std::uint64_t>(65535, 0)), "");

    Warnings warnings;
    ScriptReader words("", warnings);
    ResourceList resources;
    for (int number = 0; number < 65535; ++number)
        resources.Admit(words, FourBytesOf("many"), static_cast<std::uint16_t>(number), 0);
    EXPECT_THROW(resources.Admit(words, FourBytesOf("othr"), 0, 0), ScriptError);
}

} // namespace
} // namespace palmtools
