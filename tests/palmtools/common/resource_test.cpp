#include "palmtools/common/resource.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

TEST(Resource, HasATypeThatOrdersAsBytesDo)
{
    EXPECT_EQ(FourBytesOf("tFRM"), 0x7446524Du);
    EXPECT_EQ(FourBytesOf("ab"), 0x61620000u);
    EXPECT_EQ(FourBytesOf("\xFF"), 0xFF000000u);
    EXPECT_EQ(FourBytesOf("abcde"), FourBytesOf("abcd"));
    EXPECT_EQ(FourBytesOf(""), 0u);
    EXPECT_LT(FourBytesOf("tFRM"), FourBytesOf("tver"));
    EXPECT_LT(FourBytesOf("tver"), FourBytesOf("\xE4"));
}

TEST(Resource, ShowsItsType)
{
    EXPECT_EQ(ShownType(FourBytesOf("tFRM")), "tFRM");
    EXPECT_EQ(ShownType(FourBytesOf("a\n")), "a\\x0A");
    EXPECT_EQ(ShownType(0), "");
}

TEST(Resource, IsViewedWithoutCopyingItsBytes)
{
    const std::vector<Resource> resources = {{FourBytesOf("ab"), 7, "xyz"}, {0, 8, ""}};
    const auto views = ViewsOf(resources);
    ASSERT_EQ(views.size(), 2u);
    EXPECT_EQ(views[0].type, FourBytesOf("ab"));
    EXPECT_EQ(views[0].number, 7);
    EXPECT_EQ(views[0].bytes.data(), resources[0].bytes.data());
    EXPECT_EQ(views[0].bytes, "xyz");
    EXPECT_EQ(views[1].number, 8);
    EXPECT_EQ(views[1].bytes, "");
}

} // namespace
} // namespace palmtools
