#include "palmtools/pilrc/resource_file.h"

#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

TEST(ResourceFile, IsADatabaseOfItsOwnTypeWithAConstantTime)
{
    EXPECT_EQ(*EncodeResourceFile("a/b.ro", {{FourBytesOf("tver"), 1, "1.0"}}),
              "a/b.ro" + std::string(26, '\0') + FromHex("0001 0001 ADC0BEA0 ADC0BEA0") +
                  std::string(16, '\0') + "RESOpRES" + std::string(8, '\0') +
                  FromHex("0001 74766572 0001 0000005A 0000") + "1.0");
}

TEST(ResourceFile, KeepsTheOrderOfItsResources)
{
    const Bytes bytes = *EncodeResourceFile("a.ro", {{2, 9, "x"}, {2, 8, "y"}, {1, 7, "z"}});
    EXPECT_EQ(bytes.substr(78), FromHex("00000002 0009 0000006E 00000002 0008 0000006F"
                                        "00000001 0007 00000070 0000") +
                                    "xyz");
}

} // namespace
} // namespace palmtools
