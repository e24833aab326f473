#include "palmtools/common/unfinished_file.h"

#include "palmtools/support.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>

namespace palmtools {
namespace {

TEST(UnfinishedFile, HasANameOfItsOwnAndIsRemoved)
{
    const TemporaryFolder folder;
    const std::regex pattern("palmtools-[0-9a-f]{16}\\.new ");
    std::set<std::string> names;
    for (int i = 0; i < 100; ++i) {
        UnfinishedFile file("a.ro");
        ASSERT_FALSE(file.Create());
        const std::string name = folder.Names();
        EXPECT_TRUE(std::regex_match(name, pattern)) << name;
        names.insert(name);
    }
    EXPECT_EQ(names.size(), 100u);
    EXPECT_EQ(folder.Names(), "");
}

TEST(UnfinishedFile, IsRemovedAlsoWhenItIsWritten)
{
    const TemporaryFolder folder;
    {
        UnfinishedFile file("a.ro");
        ASSERT_FALSE(file.Create());
        ASSERT_FALSE(file.Write("a"));
        ASSERT_FALSE(file.Close());
    }
    EXPECT_EQ(folder.Names(), "");
}

TEST(UnfinishedFile, TakesThePlaceOfItsTarget)
{
    const TemporaryFolder folder;
    WriteContent("a.ro", "before");
    {
        UnfinishedFile file(folder.path() / "a.ro");
        ASSERT_FALSE(file.Create());
        ASSERT_FALSE(file.Write("af"));
        ASSERT_FALSE(file.Write("ter"));
        ASSERT_FALSE(file.Close());
        EXPECT_EQ(ContentOf("a.ro"), "before");
        ASSERT_FALSE(file.Finish());
    }
    EXPECT_EQ(ContentOf("a.ro"), "after");
    EXPECT_EQ(folder.Names(), "a.ro ");
}

} // namespace
} // namespace palmtools
