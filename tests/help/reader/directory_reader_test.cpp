#include "help/reader/directory_reader.h"

#include "help/reader/archive_bytes.h"

#include <QBuffer>
#include <gtest/gtest.h>

using namespace vellumo;

namespace {

const QByteArray controlData = "::DataSpace/Storage/MSCompressed/ControlData";

std::optional<ObjectDirectory> DirectoryOf(QByteArray file)
{
    QBuffer buffer(&file);
    EXPECT_TRUE(buffer.open(QIODevice::ReadOnly));
    const auto header = ReadArchiveHeader(buffer);
    EXPECT_TRUE(header);
    return header ? ReadDirectory(buffer, *header) : std::nullopt;
}

/// A directory of one listing with these entries; 10 bytes of content.
std::optional<ObjectDirectory> DirectoryWith(const QByteArray &entries)
{
    return DirectoryOf(FileOf({ListingOf(entries)}, -1, "0123456789"));
}

TEST(DirectoryReader, ReadsAListing)
{
    const auto objects =
        DirectoryWith(ListingEntry("/a", 0, 1, 9) + ListingEntry("/b", 1, 70'000, 1 << 20));
    ASSERT_TRUE(objects);
    EXPECT_EQ(objects->Count(), 2);
    const auto a = objects->Find("/a"), b = objects->Find("/b");
    ASSERT_TRUE(a && b);
    EXPECT_EQ(a->section, 0u);
    EXPECT_EQ(a->offset, 1u);
    EXPECT_EQ(a->length, 9u);
    EXPECT_EQ(b->section, 1u);
    EXPECT_EQ(b->offset, 70'000u);
    EXPECT_EQ(b->length, 1u << 20);
}

TEST(DirectoryReader, RefusesObjectsThatLieNowhere)
{
    const struct {
        const char *what;
        quint64 section, offset, length;
        bool isSound;
    } rows[] = {
        {"all of the content", 0, 0, 10, true},
        {"nothing at its end", 0, 10, 0, true},
        {"one byte beyond", 0, 0, 11, false},
        {"one byte beyond", 0, 1, 10, false},
        {"behind the end", 0, 11, 0, false},
        {"far behind", 0, (1ull << 63) - 1, (1ull << 63) - 1, false},
        {"compressed, which is checked later", 1, (1ull << 63) - 1, (1ull << 63) - 1, true},
        {"a third section", 2, 0, 1, false},
    };
    for (const auto &row : rows)
        EXPECT_EQ(
            DirectoryWith(ListingEntry("/a", row.section, row.offset, row.length)).has_value(),
            row.isSound)
            << row.what;
}

TEST(DirectoryReader, RefusesEntriesThatAreCutOff)
{
    const QByteArray entry = ListingEntry("/name", 0, 0, 10);
    for (qsizetype size = 1; size < entry.size(); ++size)
        EXPECT_FALSE(DirectoryWith(entry.first(size))) << size;
    EXPECT_TRUE(DirectoryWith(entry));
    EXPECT_TRUE(DirectoryWith(""));
    EXPECT_FALSE(DirectoryWith(ListingEntry(QByteArray(120, 'n'), 0, 0, 1).chopped(3)));
}

TEST(DirectoryReader, TakesTheFirstOfTwoEqualNamesUnlessItSteersTheDecompression)
{
    const auto objects = DirectoryWith(ListingEntry("/a", 0, 1, 2) + ListingEntry("/A", 0, 3, 4));
    ASSERT_TRUE(objects);
    EXPECT_EQ(objects->Find("/a")->offset, 1u);

    EXPECT_TRUE(DirectoryWith(ListingEntry(controlData, 0, 1, 2)));
    EXPECT_FALSE(DirectoryWith(ListingEntry(controlData, 0, 1, 2) +
                               ListingEntry(controlData.toLower(), 0, 1, 2)));
}

TEST(DirectoryReader, GoesDownItsIndex)
{
    const QByteArray one = ListingOf(ListingEntry("/a", 0, 0, 1)),
                     two = ListingOf(ListingEntry("/b", 0, 1, 1)),
                     lower = IndexOf(IndexEntry("/b", 1)),
                     upper = IndexOf(IndexEntry("/a", 0) + IndexEntry("/b", 2));
    const auto objects = DirectoryOf(FileOf({one, two, lower, upper}, 3, "0123456789"));
    ASSERT_TRUE(objects);
    EXPECT_EQ(objects->Count(), 2);
    EXPECT_TRUE(objects->Find("/a") && objects->Find("/b"));
}

TEST(DirectoryReader, RefusesAnIndexThatLeadsAstray)
{
    const QByteArray listing = ListingOf(ListingEntry("/a", 0, 0, 1));
    const QByteArray toListing = IndexEntry("/a", 0);
    const struct {
        const char *what;
        QByteArray index;
    } rows[] = {
        {"itself", IndexOf(IndexEntry("/a", 1))},
        {"one listing twice", IndexOf(toListing + toListing)},
        {"no chunk", IndexOf(IndexEntry("/a", 2))},
        {"a number beyond all", IndexOf(IndexEntry("/a", (1ull << 63) - 1))},
        {"an entry that is cut off", IndexOf(toListing.chopped(1))},
        {"a name that is cut off", IndexOf(toListing.chopped(2))},
        {"no kind of chunk", "PMGX" + IndexOf(toListing).sliced(4)},
    };
    for (const auto &row : rows)
        EXPECT_FALSE(DirectoryOf(FileOf({listing, row.index}, 1, "0"))) << row.what;
    EXPECT_TRUE(DirectoryOf(FileOf({listing, IndexOf(toListing)}, 1, "0")));
    EXPECT_FALSE(DirectoryOf(FileOf({listing}, 1, "0"))) << "no chunk to begin with";
    EXPECT_FALSE(DirectoryOf(FileOf({}, -1)));
}

TEST(DirectoryReader, FollowsEightLevelsOfChunks)
{
    for (const int levels : {8, 9}) {
        std::vector<QByteArray> chunks{ListingOf("")};
        for (int level = 1; level < levels; ++level)
            chunks.push_back(IndexOf(IndexEntry("/a", quint64(level - 1))));
        EXPECT_EQ(DirectoryOf(FileOf(chunks, levels - 1)).has_value(), levels == 8) << levels;
    }
}

TEST(DirectoryReader, TakesAQuarterOfAMillionObjects)
{
    constexpr int perChunk = 4096, chunkSize = 0x10000;
    const auto fileWith = [](int count) {
        std::vector<QByteArray> chunks;
        QByteArray index;
        for (int first = 0; first < count; first += perChunk) {
            QByteArray entries;
            for (int i = first; i < std::min(count, first + perChunk); ++i)
                entries += ListingEntry('/' + QByteArray::number(i, 36), 0, 0, 0);
            index += IndexEntry("/", chunks.size());
            chunks.push_back(ListingOf(entries, chunkSize));
        }
        chunks.push_back(IndexOf(index, chunkSize));
        return FileOf(chunks, int(chunks.size()) - 1);
    };
    const auto objects = DirectoryOf(fileWith(1 << 18));
    ASSERT_TRUE(objects);
    EXPECT_EQ(objects->Count(), 1 << 18);
    EXPECT_FALSE(DirectoryOf(fileWith((1 << 18) + 1)));
}

/// Counts how often it is read from.
class CountingBuffer : public QBuffer
{
public:
    using QBuffer::QBuffer;
    int reads = 0;

protected:
    qint64 readData(char *data, qint64 size) override
    {
        ++reads;
        return QBuffer::readData(data, size);
    }
};

TEST(DirectoryReader, ReadsEachChunkOnce)
{
    std::vector<QByteArray> chunks;
    QByteArray index;
    for (quint64 i = 0; i < 100; ++i) {
        const QByteArray name = '/' + QByteArray::number(i);
        chunks.push_back(ListingOf(ListingEntry(name, 0, 0, 0), 1024));
        index += IndexEntry(name, i);
    }
    chunks.push_back(IndexOf(index, 1024));
    QByteArray bytes = FileOf(chunks, 100);
    CountingBuffer file(&bytes);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    const auto header = ReadArchiveHeader(file);
    ASSERT_TRUE(header);
    file.reads = 0;
    const auto objects = ReadDirectory(file, *header);
    ASSERT_TRUE(objects);
    EXPECT_EQ(objects->Count(), 100);
    EXPECT_EQ(file.reads, 101);
}

} // namespace
