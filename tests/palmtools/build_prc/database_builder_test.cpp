#include "palmtools/build_prc/database_builder.h"

#include "palmtools/build_prc/local_zone.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

using Views = std::vector<ResourceView>;

std::string Listed(const Result<Views> &resources)
{
    if (!resources)
        return resources.error().text;
    std::string listed;
    for (const ResourceView &resource : *resources) {
        listed += ShownType(resource.type) + std::to_string(resource.number) + "=";
        listed.append(resource.bytes).append(" ");
    }
    return listed;
}

TEST(DatabaseBuilder, MakesAHeader)
{
    const LocalZone zone("EAST-1");
    const auto header = HeaderOf(
        {.name = "caf\xC3\xA9", .type = "kelp", .creator = "Wmpt", .hidden = true}, 1700000000);
    ASSERT_TRUE(header);
    EXPECT_EQ(header->name, "caf\xE9");
    EXPECT_TRUE(header->hidden);
    EXPECT_EQ(header->time, 1700000000u + 3600 + 2082844800);
    EXPECT_EQ(header->type, FourBytesOf("kelp"));
    EXPECT_EQ(header->creator, FourBytesOf("Wmpt"));
}

TEST(DatabaseBuilder, HasAHeaderForAnIdentityThatSaysNothing)
{
    const auto header = HeaderOf({}, 0);
    ASSERT_TRUE(header);
    EXPECT_EQ(header->name, "");
    EXPECT_FALSE(header->hidden);
    EXPECT_EQ(header->type, FourBytesOf("appl"));
    EXPECT_EQ(header->creator, 0u);
}

TEST(DatabaseBuilder, RefusesWhatTheHeaderCannotHold)
{
    const std::string longName(32, 'n');
    const struct {
        const char *what;
        DatabaseIdentity identity;
        const char *text;
    } rows[] = {
        {"a short type", {.type = "kel"}, "the type 'kel' is not 4 bytes long"},
        {"a long type", {.type = "kelpy"}, "the type 'kelpy' is not 4 bytes long"},
        {"no type", {.type = ""}, "the type '' is not 4 bytes long"},
        {"characters are not bytes",
         {.type = "k\xC3\xA9lp"},
         "the type 'k\xC3\xA9lp' is not 4 bytes long"},
        {"a short creator", {.creator = "W\n"}, "the creator 'W\\x0A' is not 4 bytes long"},
        {"a long creator", {.creator = "Wmpts"}, "the creator 'Wmpts' is not 4 bytes long"},
        {"a long name", {.name = longName}, "the database name has 32 bytes, more than 31"},
        {"the type is told first",
         {.name = longName, .type = "", .creator = "W"},
         "the type '' is not 4 bytes long"},
        {"then the creator",
         {.name = longName, .creator = "W"},
         "the creator 'W' is not 4 bytes long"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        const auto header = HeaderOf(row.identity, 0);
        ASSERT_FALSE(header);
        EXPECT_EQ(header.error().text, row.text);
        EXPECT_EQ(header.error().file, "");
    }
}

TEST(DatabaseBuilder, SortsByTypeAndNumber)
{
    const Views views = {{FourBytesOf("tver"), 1, "a"},    {FourBytesOf("tFRM"), 10, "b"},
                         {FourBytesOf("tFRM"), 9, "c"},    {FourBytesOf("\xE4"), 1, "d"},
                         {FourBytesOf("flds"), 1000, "e"}, {FourBytesOf("tFRM"), 65535, "f"},
                         {FourBytesOf("tAIN"), 1000, "g"}, {FourBytesOf("fl"), 2000, "h"}};
    EXPECT_EQ(Listed(Sorted(views)), "fl2000=h flds1000=e tAIN1000=g tFRM9=c tFRM10=b "
                                     "tFRM65535=f tver1=a \xE4"
                                     "1=d ");
}

TEST(DatabaseBuilder, TakesEveryResourceOnce)
{
    EXPECT_EQ(Listed(Sorted({{1, 5, "a"},
                             {FourBytesOf("tFRM"), 7, "b"},
                             {1, 6, "c"},
                             {FourBytesOf("tFRM"), 7, "d"}})),
              "resource 'tFRM' 7 is there twice");
}

} // namespace
} // namespace palmtools
