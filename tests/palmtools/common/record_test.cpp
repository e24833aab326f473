#include "palmtools/common/record.h"

#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

TEST(Record, IsZeroButForWhatIsPut)
{
    Bytes bytes = "ab";
    Record record(bytes, 16);
    EXPECT_EQ(bytes, "ab" + std::string(16, '\0'));
    record.Put8(0, 0x101);
    record.Put16(2, 0x1234);
    record.Put32(5, 0xADC0BEA0);
    record.PutText(10, "xyz");
    record.Put16(14, -2);
    EXPECT_EQ(bytes, "ab" + FromHex("01 00 1234 00 ADC0BEA0 00 78797A 00 FFFE"));
}

TEST(Record, KeepsItsPlaceWhileTheBytesGrow)
{
    Bytes bytes;
    Record first(bytes, 2);
    Record second(bytes, 4);
    bytes += Repeated("z", 1000);
    second.Put32(0, -2);
    first.Put16(0, 7);
    EXPECT_EQ(bytes, FromHex("0007 FFFFFFFE") + Repeated("z", 1000));
}

} // namespace
} // namespace palmtools
