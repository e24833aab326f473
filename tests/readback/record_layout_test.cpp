#include "readback/record_layout.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

struct Sample {
    quint32 first = 0, second = 0, untouched = 7;
};

constexpr StoredNumber<Sample> sampleNumbers[] = {
    {1, 1, &Sample::first},
    {2, 2, nullptr, 0x1200},
    {6, 4, &Sample::second},
};
constexpr RecordLayout<Sample> sampleLayout(12, sampleNumbers);

/// A record that is as it should be, and a byte that follows it.
QByteArray SampleBytes()
{
    return QByteArray("\0\x05\x12\0\0\0\x01\x02\x03\x04\0\0\xFF", 13);
}

/// The fault of a record in which one byte is another.
QString FaultWith(qsizetype offset, char byte)
{
    QByteArray bytes = SampleBytes();
    bytes[offset] = byte;
    ByteReader reader(bytes);
    Sample sample;
    sampleLayout.Take(reader, sample);
    return reader.Fault();
}

} // namespace

TEST(RecordLayout, TakesEachNumberFromItsPlace)
{
    const QByteArray bytes = SampleBytes();
    ByteReader reader(bytes);
    Sample sample;
    sampleLayout.Take(reader, sample);
    EXPECT_EQ(reader.Fault(), QString());
    EXPECT_EQ(sample.first, 5u);
    EXPECT_EQ(sample.second, 0x01020304u);
    EXPECT_EQ(sample.untouched, 7u);
    EXPECT_EQ(reader.Offset(), 12) << "what follows is not its own";
}

TEST(RecordLayout, RefusesWhatIsNoZeroBetweenTheNumbers)
{
    for (const qsizetype offset : {0, 4, 5, 10, 11})
        EXPECT_EQ(FaultWith(offset, 1), u"byte %1 is not zero"_s.arg(offset));
    EXPECT_EQ(FaultWith(12, 1), QString()) << "behind the record";
}

TEST(RecordLayout, RefusesAnotherConstant)
{
    EXPECT_EQ(FaultWith(3, 1), u"the number at byte 2 is 4609 instead of 4608"_s);
}

TEST(RecordLayout, TellsPlacesFromTheStartOfAllBytes)
{
    const QByteArray bytes = "abc" + SampleBytes().replace(4, 1, "x");
    ByteReader reader(bytes);
    reader.Take(3);
    Sample sample;
    sampleLayout.Take(reader, sample);
    EXPECT_EQ(reader.Fault(), u"byte 7 is not zero"_s);
}

TEST(RecordLayout, TakesNothingBeyondTheEnd)
{
    const QByteArray bytes = SampleBytes().first(8);
    ByteReader reader(bytes);
    Sample sample;
    sampleLayout.Take(reader, sample);
    EXPECT_EQ(sample.first, 5u);
    EXPECT_EQ(sample.second, 0u);
    EXPECT_EQ(reader.Fault(), u"it ends too early, at byte 8"_s);
}
