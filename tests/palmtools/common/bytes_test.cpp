#include "palmtools/common/bytes.h"

#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

TEST(Bytes, HaveTheHighestByteFirst)
{
    Bytes bytes;
    AppendByte(bytes, 0x101);
    AppendBigEndian16(bytes, 0x1234);
    AppendBigEndian32(bytes, 0xADC0BEA0);
    AppendBigEndian16(bytes, -2);
    AppendBigEndian32(bytes, -2);
    EXPECT_EQ(bytes, FromHex("01 1234 ADC0BEA0 FFFE FFFFFFFE"));
    EXPECT_EQ(BigEndian16At(bytes, 1), 0x1234);
    EXPECT_EQ(BigEndian32At(bytes, 3), 0xADC0BEA0);
    EXPECT_EQ(BigEndian16At(bytes, 7), 0xFFFE);
}

TEST(Bytes, ArePaddedWhenTheyAreOdd)
{
    Bytes bytes;
    PadToEven(bytes);
    EXPECT_EQ(bytes, "");
    AppendZeroEnded(bytes, "ab");
    EXPECT_EQ(bytes, FromHex("616200"));
    PadToEven(bytes);
    EXPECT_EQ(bytes, FromHex("61620000"));
    PadToEven(bytes);
    EXPECT_EQ(bytes.size(), 4u);
}

} // namespace
} // namespace palmtools
