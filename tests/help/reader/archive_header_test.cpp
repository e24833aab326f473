#include "help/reader/archive_header.h"

#include "help/reader/archive_bytes.h"

#include <QBuffer>
#include <gtest/gtest.h>

using namespace vellumo;

namespace {

std::optional<ArchiveHeader> HeaderOf(QByteArray file)
{
    QBuffer buffer(&file);
    EXPECT_TRUE(buffer.open(QIODevice::ReadOnly));
    return ReadArchiveHeader(buffer);
}

/// Three chunks of 256 bytes and ten bytes of content.
QByteArray Sound()
{
    return FileOf({ListingOf(""), ListingOf(""), IndexOf("")}, 2, "0123456789");
}

constexpr quint64 contentStart = chunksStart + 3ULL * 256;

TEST(ArchiveHeader, LeadsToDirectoryAndContent)
{
    const auto header = HeaderOf(Sound());
    ASSERT_TRUE(header);
    EXPECT_EQ(header->contentStart, contentStart);
    EXPECT_EQ(header->contentLength, 10u);
    EXPECT_EQ(header->chunksStart, quint64(chunksStart));
    EXPECT_EQ(header->chunkCount, 3u);
    EXPECT_EQ(header->chunkSize, 256u);
    EXPECT_EQ(header->rootChunk, 2);
}

TEST(ArchiveHeader, HasTheFirstListingInPlaceOfAnIndex)
{
    QByteArray file = Sound();
    Store32(file, directoryStart + 0x1C, quint32(-1));
    Store32(file, directoryStart + 0x20, 1);
    EXPECT_EQ(HeaderOf(file)->rootChunk, 1);
    Store32(file, directoryStart + 0x20, quint32(-1));
    EXPECT_EQ(HeaderOf(file)->rootChunk, -1)
        << "which is for the reader of the directory to refuse";
}

TEST(ArchiveHeader, HasItsContentBehindTheDirectoryInVersion2)
{
    QByteArray file = Sound();
    Store32(file, 4, 2);
    Store64(file, 0x58, ~0ull);
    const auto header = HeaderOf(file);
    ASSERT_TRUE(header);
    EXPECT_EQ(header->contentStart, contentStart);
}

TEST(ArchiveHeader, CountsWholeChunks)
{
    QByteArray file = Sound();
    Store64(file, 0x50, contentStart - directoryStart - 1);
    EXPECT_EQ(HeaderOf(file)->chunkCount, 2u);
    Store64(file, 0x50, 0x54);
    EXPECT_EQ(HeaderOf(file)->chunkCount, 0u);
}

TEST(ArchiveHeader, IsNoneWhereAFieldOfFourBytesIsWrong)
{
    const struct {
        const char *what;
        qsizetype offset;
        quint32 value;
        bool isSound;
    } rows[] = {
        {"tag", 0, 0, false},
        {"version", 4, 1, false},
        {"version", 4, 4, false},
        {"size of the header, which nobody needs", 8, 7, true},
        {"tag of the directory", directoryStart, 0, false},
        {"size of its header", directoryStart + 8, 0x53, false},
        {"size of its header", directoryStart + 8, 0x55, false},
        {"smallest chunk", directoryStart + 0x10, 64, true},
        {"chunk too small", directoryStart + 0x10, 63, false},
        {"largest chunk", directoryStart + 0x10, 65'536, true},
        {"chunk too large", directoryStart + 0x10, 65'537, false},
        {"chunk of nothing", directoryStart + 0x10, 0, false},
    };
    for (const auto &row : rows) {
        QByteArray file = Sound();
        Store32(file, row.offset, row.value);
        EXPECT_EQ(HeaderOf(file).has_value(), row.isSound) << row.what << ' ' << row.value;
    }
}

TEST(ArchiveHeader, IsNoneWhereAPlaceLiesBeyondTheFile)
{
    constexpr quint64 size = contentStart + 10;
    const struct {
        const char *what;
        qsizetype offset;
        quint64 value;
        bool isSound;
    } rows[] = {
        {"directory", 0x48, size, false},
        {"directory", 0x48, size + 1, false},
        {"directory", 0x48, ~0ull, false},
        {"directory to the end", 0x50, size - directoryStart, true},
        {"directory beyond the end", 0x50, size - directoryStart + 1, false},
        {"no room for the directory's header", 0x50, 0x53, false},
        {"directory without end", 0x50, ~0ull, false},
        {"no content", 0x58, size, true},
        {"content beyond the end", 0x58, size + 1, false},
    };
    for (const auto &row : rows) {
        QByteArray file = Sound();
        Store64(file, row.offset, row.value);
        EXPECT_EQ(HeaderOf(file).has_value(), row.isSound) << row.what << ' ' << row.value;
    }
}

TEST(ArchiveHeader, IsNoneForADirectoryBeyondItsLimit)
{
    QByteArray file = Sound();
    file.resize((64 << 20) + directoryStart + 1);
    Store64(file, 0x50, 64 << 20);
    EXPECT_TRUE(HeaderOf(file));
    Store64(file, 0x50, (64 << 20) + 1);
    EXPECT_FALSE(HeaderOf(file));
}

TEST(ArchiveHeader, IsNoneForAFileThatIsCutOff)
{
    const QByteArray file = Sound();
    for (qsizetype size = 0; size < qsizetype(contentStart); ++size)
        ASSERT_FALSE(HeaderOf(file.first(size))) << size;
    EXPECT_TRUE(HeaderOf(file.first(qsizetype(contentStart))));
}

} // namespace
