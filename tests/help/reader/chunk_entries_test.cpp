#include "help/reader/chunk_entries.h"

#include "help/reader/archive_bytes.h"

#include <gtest/gtest.h>

using namespace vellumo;

namespace {

constexpr qsizetype listingHeader = 0x14;

/// Entries to the end of a chunk; the chunk is kept for them.
struct Entries {
    explicit Entries(const QByteArray &bytes)
        : chunk(ListingOf(bytes, listingHeader + bytes.size()))
    {}

    ChunkEntries operator()() const { return *ChunkEntries::Of(chunk, listingHeader); }

    QByteArray chunk;
};

TEST(ChunkEntries, LieBetweenTheHeaderAndTheFreeBytes)
{
    QByteArray chunk = ListingOf(PackedName("/a") + Packed(7), 100);
    auto entries = ChunkEntries::Of(chunk, listingHeader);
    ASSERT_TRUE(entries);
    EXPECT_FALSE(entries->AtEnd());
    EXPECT_EQ(entries->Name(), QByteArrayView("/a"));
    EXPECT_EQ(entries->Number(), 7u);
    EXPECT_TRUE(entries->AtEnd());
    EXPECT_FALSE(entries->Number());
    EXPECT_FALSE(entries->Name());

    Store32(chunk, 4, 100 - listingHeader);
    EXPECT_TRUE(ChunkEntries::Of(chunk, listingHeader)->AtEnd());
    Store32(chunk, 4, 100 - listingHeader + 1);
    EXPECT_FALSE(ChunkEntries::Of(chunk, listingHeader));
    Store32(chunk, 4, ~0u);
    EXPECT_FALSE(ChunkEntries::Of(chunk, listingHeader));
}

TEST(ChunkEntries, HaveNumbersOfSevenBitsAByte)
{
    const struct {
        QByteArray bytes;
        quint64 number;
    } rows[] = {
        {QByteArray("\0", 1), 0},
        {"\x7F", 127},
        {QByteArray("\x81\0", 2), 128},
        {"\x81\x01", 129},
        {"\xFF\x7F", 16'383},
        {QByteArray("\x80\0", 2), 0},
        {"\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x7F", (1ull << 63) - 1},
    };
    for (const auto &row : rows) {
        const Entries bytes(row.bytes);
        auto entries = bytes();
        EXPECT_EQ(entries.Number(), row.number);
        EXPECT_TRUE(entries.AtEnd()) << row.number;
    }
}

TEST(ChunkEntries, HaveNoNumberThatDoesNotEnd)
{
    for (const QByteArray &bytes : {QByteArray("\x81"), QByteArray("\xFF\xFF"),
                                    QByteArray(9, '\xFF') + '\1', QByteArray(9, '\x80') + '\0'}) {
        const Entries kept(bytes);
        EXPECT_FALSE(kept().Number()) << bytes.toHex().toStdString();
    }
}

TEST(ChunkEntries, HaveNamesOfUpTo512Bytes)
{
    const QByteArray longest(512, 'n');
    const Entries sound(PackedName(longest) + PackedName("") + PackedName("x"));
    auto entries = sound();
    EXPECT_EQ(entries.Name(), QByteArrayView(longest));
    EXPECT_EQ(entries.Name(), QByteArrayView(""));
    EXPECT_EQ(entries.Name(), QByteArrayView("x"));
    EXPECT_TRUE(entries.AtEnd());

    const Entries tooLong(PackedName(longest + 'n')), cutOff(PackedName("name").chopped(1)),
        endless(QByteArray("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x7F") + "name"), none("");
    EXPECT_FALSE(tooLong().Name());
    EXPECT_FALSE(cutOff().Name());
    EXPECT_FALSE(endless().Name());
    EXPECT_FALSE(none().Name());
}

} // namespace
