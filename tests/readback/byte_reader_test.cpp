#include "readback/byte_reader.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(ByteReader, TakesBigEndianNumbers)
{
    ByteReader reader(QByteArrayView("\x01\x02\x03\x80\x00\x00\x04", 7));
    EXPECT_EQ(reader.TakeNumber(1), 1u);
    EXPECT_EQ(reader.TakeNumber(2), 0x0203u);
    EXPECT_EQ(reader.TakeNumber(4), 0x80000004u);
    EXPECT_EQ(reader.Offset(), 7);
    reader.PassEnd();
    EXPECT_FALSE(reader.Failed());
}

TEST(ByteReader, TakesTextsWithTheirEnd)
{
    ByteReader reader(QByteArrayView("ab\0\0c", 5));
    EXPECT_EQ(reader.TakeText(), QByteArray("ab"));
    EXPECT_EQ(reader.TakeText(), QByteArray(""));
    EXPECT_FALSE(reader.Failed());
    EXPECT_EQ(reader.TakeText(), QByteArray());
    EXPECT_EQ(reader.Fault(), u"the text at byte 4 has no end"_s);
}

TEST(ByteReader, TakesNothingBeyondTheEnd)
{
    ByteReader reader(QByteArrayView("\x01\x02", 2));
    EXPECT_EQ(reader.TakeNumber(4), 0u);
    EXPECT_EQ(reader.Fault(), u"it ends too early, at byte 2"_s);
    EXPECT_EQ(reader.TakeNumber(1), 0u) << "also not what is there, once it has failed";
    EXPECT_EQ(reader.Offset(), 0);

    ByteReader zeros(QByteArrayView("\0\0", 2));
    zeros.PassZeros(qsizetype(8) * 65535 * 65535);
    EXPECT_EQ(zeros.Fault(), u"it ends too early, at byte 2"_s);
}

const struct {
    const char *what;
    void (*read)(ByteReader &);
    QString fault;
} readings[] = {
    {"zeros", [](ByteReader &reader) { reader.PassZeros(2); }, u""_s},
    {"no zero", [](ByteReader &reader) { reader.PassZeros(4); }, u"byte 3 is not zero"_s},
    {"a number", [](ByteReader &reader) { reader.PassNumber(4, 7); }, u""_s},
    {"another",
     [](ByteReader &reader) {
         reader.Take(2);
         reader.PassNumber(2, 8);
     },
     u"the number at byte 2 is 7 instead of 8"_s},
    {"no padding is due", [](ByteReader &reader) { reader.PassPadding(); }, u""_s},
    {"padding that is not zero",
     [](ByteReader &reader) {
         reader.Take(3);
         reader.PassPadding();
     },
     u"byte 3 is not zero"_s},
    {"more than expected",
     [](ByteReader &reader) {
         reader.Take(3);
         reader.PassEnd();
     },
     u"it should end at byte 3, but has 4 bytes"_s},
    {"the first counts",
     [](ByteReader &reader) {
         reader.Refuse(u"one"_s);
         reader.Refuse(u"two"_s);
         reader.Take(9);
     },
     u"one"_s},
};

TEST(ByteReader, NamesTheFirstFault)
{
    for (const auto &row : readings) {
        SCOPED_TRACE(row.what);
        ByteReader reader(QByteArrayView("\0\0\0\x07", 4));
        row.read(reader);
        EXPECT_EQ(reader.Fault(), row.fault);
    }
}
