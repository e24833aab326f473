#include "help/reader/compression_check.h"

#include "help/reader/archive_bytes.h"

#include <QBuffer>
#include <gtest/gtest.h>

using namespace vellumo;

namespace {

constexpr quint32 block = 0x8000;

QByteArray ControlData(quint32 version = 2, quint32 reset = 2, quint32 window = 2,
                       quint32 windows = 1)
{
    QByteArray bytes(0x1C, '\0');
    Store32(bytes, 0x08, version);
    Store32(bytes, 0x0C, reset);
    Store32(bytes, 0x10, window);
    Store32(bytes, 0x14, windows);
    return bytes;
}

/// For blocks that begin at these places of the stream, which ends at the last one.
QByteArray ResetTable(const std::vector<quint64> &places)
{
    QByteArray bytes(0x28 + qsizetype(places.size() - 1) * 8, '\0');
    Store32(bytes, 0x04, quint32(places.size() - 1));
    Store32(bytes, 0x0C, 0x28);
    Store64(bytes, 0x18, places.back());
    Store64(bytes, 0x20, block);
    for (std::size_t i = 0; i + 1 < places.size(); ++i)
        Store64(bytes, 0x28 + qsizetype(i) * 8, places[i]);
    return bytes;
}

TEST(CompressionCheck, TellsTheSizeOfAllBlocks)
{
    EXPECT_EQ(SizeBeforeCompression(ControlData(), ResetTable({0, 100})), block);
    EXPECT_EQ(SizeBeforeCompression(ControlData(), ResetTable({0, 100, 30'000, 30'001})),
              3 * block);
}

TEST(CompressionCheck, WantsNumbersThatBelongTogether)
{
    const struct {
        const char *what;
        QByteArray control;
        bool isSound;
    } rows[] = {
        {"sizes in blocks", ControlData(2, 1, 1, 1), true},
        {"sizes in bytes", ControlData(1, block, block, 1), true},
        {"half a window", ControlData(1, block / 2, block, 1), true},
        {"a third of a window", ControlData(1, block / 3, block, 1), false},
        {"no version", ControlData(0), false},
        {"another version", ControlData(3), false},
        {"never anew", ControlData(2, 0), false},
        {"less than half a window", ControlData(2, 1, 4), false},
        {"one window and a half", ControlData(2, 3, 2), true},
        {"anew as late as allowed", ControlData(2, 64, 2), true},
        {"anew too late", ControlData(2, 65, 2), false},
        {"no window", ControlData(2, 2, 0), false},
        {"window of no power of two", ControlData(2, 3, 3), false},
        {"window too small", ControlData(1, block, block / 2), false},
        {"largest window", ControlData(2, 64, 64), true},
        {"window too large", ControlData(2, 128, 128), false},
        {"window that overflows", ControlData(2, 2, 1u << 31), false},
        {"no windows", ControlData(2, 2, 2, 0), false},
        {"most windows", ControlData(2, 2, 2, 64), true},
        {"too many windows", ControlData(2, 2, 2, 65), false},
        {"as short as it can be", ControlData().first(0x18), true},
        {"cut off", ControlData().first(0x17), false},
        {"empty", "", false},
    };
    const QByteArray table = ResetTable({0, 100});
    for (const auto &row : rows)
        EXPECT_EQ(SizeBeforeCompression(row.control, table).has_value(), row.isSound) << row.what;
}

TEST(CompressionCheck, WantsBlocksInTheirOrder)
{
    constexpr quint64 longest = block + 6144;
    const struct {
        const char *what;
        std::vector<quint64> places;
        bool isSound;
    } rows[] = {
        {"empty blocks", {0, 0, 0}, true},
        {"longest block", {0, longest, longest + 1}, true},
        {"block too long", {0, longest + 1, longest + 2}, false},
        {"longest last block", {0, 1, longest + 1}, true},
        {"last block too long", {0, 1, longest + 2}, false},
        {"backwards", {10, 9, 20}, false},
        {"stream that ends before its last block", {0, 10, 9}, false},
        {"far away", {~0ull - 1, ~0ull}, true},
        {"round the end of numbers", {~0ull, 0}, false},
    };
    for (const auto &row : rows)
        EXPECT_EQ(SizeBeforeCompression(ControlData(), ResetTable(row.places)).has_value(),
                  row.isSound)
            << row.what;
}

TEST(CompressionCheck, WantsATableThatHoldsItsBlocks)
{
    const QByteArray whole = ResetTable({0, 100, 200});
    const struct {
        const char *what;
        qsizetype offset;
        quint32 value;
        bool isSound;
    } rows[] = {
        {"no blocks", 0x04, 0, false},          {"fewer blocks", 0x04, 1, true},
        {"one block more", 0x04, 3, false},     {"far too many", 0x04, ~0u, false},
        {"one entry later", 0x0C, 0x30, false}, {"behind the table", 0x0C, 0x39, false},
        {"far behind", 0x0C, ~0u, false},       {"half a block", 0x20, block / 2, false},
        {"large blocks", 0x24, 1, false},
    };
    for (const auto &row : rows) {
        QByteArray table = whole;
        Store32(table, row.offset, row.value);
        EXPECT_EQ(SizeBeforeCompression(ControlData(), table).has_value(), row.isSound) << row.what;
    }
    for (qsizetype size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(SizeBeforeCompression(ControlData(), whole.first(size))) << size;
}

/// What may stand in the directory of an archive for the two objects.
struct Objects {
    explicit Objects(const QByteArray &content = ControlData() + ResetTable({0, 100}))
    {
        file.setData(content);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        header.contentLength = quint64(content.size());
    }

    Objects &Control(const ObjectPlace &place = {0, 0, 0x1C})
    {
        directory.Add("::dataspace/Storage/MSCompressed/CONTROLDATA", place);
        return *this;
    }

    Objects &Table(const ObjectPlace &place = {0, 0x1C, 0x30})
    {
        directory.Add("::DataSpace/Storage/MSCompressed/Transform/"
                      "{7FC28940-9D31-11D0-9B27-00A0C91E9C7C}/InstanceData/ResetTable",
                      place);
        return *this;
    }

    Objects &Compressed(quint64 offset, quint64 length)
    {
        directory.Add("/a.html", {1, offset, length});
        return *this;
    }

    bool AreSound() { return IsCompressionSound(file, header, directory); }

    QBuffer file;
    ArchiveHeader header;
    ObjectDirectory directory;
};

TEST(CompressionCheck, WantsBothObjectsOrNone)
{
    EXPECT_TRUE(Objects().AreSound());
    EXPECT_TRUE(Objects().Control().Table().AreSound());
    EXPECT_FALSE(Objects().Control().AreSound());
    EXPECT_FALSE(Objects().Table().AreSound());
    EXPECT_TRUE(Objects().Compressed(0, 1).AreSound()) << "which the library cannot decompress";
}

TEST(CompressionCheck, WantsBothObjectsAsTheyStand)
{
    EXPECT_FALSE(Objects().Control({1, 0, 0x1C}).Table().AreSound());
    EXPECT_FALSE(Objects().Control().Table({1, 0x1C, 0x30}).AreSound());
    EXPECT_FALSE(Objects().Control({0, 0, 0}).Table().AreSound());
    EXPECT_FALSE(Objects().Control().Table({0, 0x1C, 0}).AreSound());
    EXPECT_FALSE(Objects().Control({0, 0x1000, 0x1C}).Table().AreSound());
}

TEST(CompressionCheck, WantsATableWithinItsLimit)
{
    const QByteArray content = ControlData() + ResetTable({0, 100}) + QByteArray(16 << 20, '\0');
    EXPECT_TRUE(Objects(content).Control().Table({0, 0x1C, 16 << 20}).AreSound());
    EXPECT_FALSE(Objects(content).Control().Table({0, 0x1C, (16 << 20) + 1}).AreSound());
}

TEST(CompressionCheck, WantsCompressedObjectsWithinTheStream)
{
    EXPECT_TRUE(Objects().Control().Table().Compressed(0, block).AreSound());
    EXPECT_FALSE(Objects().Control().Table().Compressed(0, block + 1).AreSound());
    EXPECT_FALSE(Objects().Control().Table().Compressed(block, 1).AreSound());
    EXPECT_FALSE(Objects().Control().Table().Compressed((1ull << 63) - 1, 1).AreSound());
}

} // namespace
