#include "palmtools/common/database.h"

#include "palmtools/common/files.h"

#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

using Views = std::vector<ResourceView>;

/// A database of the resources ab 1 "xyz", cd 2 "" and ab 3 "q", to be damaged.
Bytes Sample()
{
    const Views views = {
        {FourBytesOf("ab"), 1, "xyz"}, {FourBytesOf("cd"), 2, ""}, {FourBytesOf("ab"), 3, "q"}};
    return *EncodeDatabase({.name = "sample"}, views);
}

Bytes With(Bytes bytes, std::size_t offset, std::string_view hex)
{
    const Bytes patch = FromHex(hex);
    return bytes.replace(offset, patch.size(), patch);
}

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

TEST(Database, LiesAsTheHandheldReadsIt)
{
    const Views views = {{FourBytesOf("tver"), 1, "1.0"},
                         {FourBytesOf("a"), 0x1234, ""},
                         {FourBytesOf("b"), 2, "xy"}};
    const DatabaseHeader header = {.name = "name",
                                   .hidden = true,
                                   .time = 0x12345678,
                                   .type = FourBytesOf("kelp"),
                                   .creator = FourBytesOf("Wmpt")};
    EXPECT_EQ(*EncodeDatabase(header, views),
              "name" + std::string(28, '\0') + FromHex("0101 0001 12345678 12345678") +
                  std::string(16, '\0') + "kelpWmpt" + std::string(8, '\0') + FromHex("0003") +
                  FromHex("74766572 0001 0000006E  61000000 1234 00000071"
                          "62000000 0002 00000071  0000") +
                  "1.0xy");
}

TEST(Database, MayBeEmptyAndVisible)
{
    EXPECT_EQ(*EncodeDatabase({}, {}),
              std::string(32, '\0') + FromHex("0001 0001") + std::string(44, '\0'));
}

TEST(Database, CutsItsNameAt31Bytes)
{
    for (const std::size_t length : {30u, 31u, 32u, 100u}) {
        SCOPED_TRACE(length);
        const Bytes bytes = *EncodeDatabase({.name = std::string(length, 'n')}, {});
        const std::size_t kept = std::min<std::size_t>(length, 31);
        EXPECT_EQ(bytes.substr(0, 32), std::string(kept, 'n') + std::string(32 - kept, '\0'));
    }
}

TEST(Database, IsReadAgain)
{
    EXPECT_EQ(Listed(DecodeDatabase(Sample())), "ab1=xyz cd2= ab3=q ");
    EXPECT_EQ(Listed(DecodeDatabase(*EncodeDatabase({}, {}))), "");
}

TEST(Database, IsRefusedWhereItIsDamaged)
{
    const Bytes sample = Sample();
    const std::size_t tableEnd = 78 + 3 * 10;
    ASSERT_EQ(sample.size(), tableEnd + 2 + 4);
    const struct {
        const char *what;
        Bytes bytes;
        const char *text;
    } rows[] = {
        {"nothing", "", "shorter than the header of a database"},
        {"one byte too short", sample.substr(0, 77), "shorter than the header of a database"},
        {"the header and no entry", sample.substr(0, 78), "shorter than its entries"},
        {"an entry cut off", sample.substr(0, tableEnd - 1), "shorter than its entries"},
        {"entries only", sample.substr(0, tableEnd), "entry 3 begins beyond the end of the file"},
        {"no resource database", With(sample, 32, "FFFE"), "no resource database"},
        {"other attributes do not matter", With(sample, 32, "FFFF"), "ab1=xyz cd2= ab3=q "},
        {"neither name nor times", With(sample, 0, "FFFFFFFF"), "ab1=xyz cd2= ab3=q "},
        {"inside of the entries", With(sample, 78 + 6, "0000006B"),
         "entry 1 begins inside of the entries"},
        {"beyond the end", With(sample, 98 + 6, "00000073"),
         "entry 3 begins beyond the end of the file"},
        {"far beyond the end", With(sample, 98 + 6, "FFFFFFFF"),
         "entry 3 begins beyond the end of the file"},
        {"in front of the one before", With(sample, 98 + 6, "00000070"),
         "entry 2 begins behind the one that follows it"},
        {"more entries than there are", With(sample, 76, "FFFF"), "shorter than its entries"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Listed(DecodeDatabase(row.bytes)), row.text);
    }
}

TEST(Database, IsNotLargerThanAFileThatIsRead)
{
    const Bytes bytes(largestFile - 90, 'x');
    const auto largest = EncodeDatabase({}, {{FourBytesOf("ab"), 1, bytes}});
    ASSERT_TRUE(largest);
    EXPECT_EQ(largest->size(), largestFile);
    const auto larger =
        EncodeDatabase({}, {{FourBytesOf("ab"), 1, bytes}, {FourBytesOf("ab"), 2, ""}});
    ASSERT_FALSE(larger);
    EXPECT_EQ(larger.error().text, "the resources are too large together for one file");
}

TEST(Database, IsReadAtTheLimitsOfItsOffsets)
{
    const Bytes behindEntries = With(Sample(), 78 + 6, "0000006C");
    EXPECT_EQ(Listed(DecodeDatabase(behindEntries)),
              "ab1=" + std::string(2, '\0') + "xyz cd2= ab3=q ");
    const Bytes atEnd = With(Sample(), 98 + 6, "00000072");
    EXPECT_EQ(Listed(DecodeDatabase(atEnd)), "ab1=xyz cd2=q ab3= ");
}

} // namespace
} // namespace palmtools
