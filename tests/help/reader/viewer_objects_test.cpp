#include "help/reader/viewer_objects.h"

#include "help/little_endian.h"
#include "help/viewer_format.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QByteArray Item(quint16 code, const QByteArray &data)
{
    QByteArray bytes;
    AppendLittle(bytes, code);
    AppendLittle(bytes, quint16(data.size()));
    return bytes + data;
}

const QByteArray version("\x03\0\0\0", 4);

TEST(TextAt, EndsAtAZeroByteOrWithTheBytes)
{
    const QByteArray bytes("\0first\0second", 13);
    const struct {
        quint64 offset;
        QString text;
    } rows[] = {{0, u""_s},       {1, u"first"_s}, {3, u"rst"_s},      {6, u""_s},
                {7, u"second"_s}, {12, u"d"_s},    {13, u""_s},        {14, u""_s},
                {~0u, u""_s},     {~0ull, u""_s},  {1ull << 63, u""_s}};
    for (const auto &row : rows)
        EXPECT_EQ(TextAt(bytes, row.offset), row.text) << row.offset;
    EXPECT_EQ(TextAt({}, 0), u""_s);
}

TEST(TextAt, LeavesOutWhatIsTooLong)
{
    EXPECT_EQ(TextAt(QByteArray(1024, 'x'), 0).size(), 1024);
    EXPECT_EQ(TextAt(QByteArray(5000, 'x'), 0).size(), 1024);
    EXPECT_EQ(TextAt(QByteArray(5000, 'x'), 3977).size(), 1023);
    const QString letters(400, u'\u20AC'); // of three bytes each
    EXPECT_EQ(TextAt(letters.toUtf8(), 0), letters.first(341));
    EXPECT_EQ(TextAt(letters.first(341).toUtf8(), 0), letters.first(341));
}

TEST(TextAt, ReadsBothCodings)
{
    EXPECT_EQ(TextAt("\xC3\xA9", 0), u"\u00E9"_s);
    EXPECT_EQ(TextAt("\xE9t\xE9s", 0), u"\u00E9t\u00E9s"_s);
}

TEST(SystemItems, AreTextsByTheirCodes)
{
    const auto items = ReadSystemItems(version + Item(systemObject::defaultPage, "a.html") +
                                       Item(systemObject::title, QByteArray("Title\0more", 10)) +
                                       Item(systemObject::title, "Another") + Item(77, "unknown") +
                                       Item(systemObject::contentsFile, ""));
    EXPECT_EQ(items.size(), 4u);
    EXPECT_EQ(items.at(2), u"a.html"_s);
    EXPECT_EQ(items.at(3), u"Title"_s) << "the first one, up to its zero byte";
    EXPECT_EQ(items.at(77), u"unknown"_s);
    EXPECT_EQ(items.at(0), u""_s);
}

TEST(SystemItems, MayBeCutOff)
{
    const QByteArray whole = version + Item(2, "a.html") + Item(3, "Title");
    const struct {
        qsizetype size;
        std::size_t items;
        QString page, title;
    } rows[] = {{0, 0, u""_s, u""_s},
                {4, 0, u""_s, u""_s},
                {7, 0, u""_s, u""_s},
                {8, 1, u""_s, u""_s},
                {10, 1, u"a."_s, u""_s},
                {14, 1, u"a.html"_s, u""_s},
                {17, 1, u"a.html"_s, u""_s},
                {20, 2, u"a.html"_s, u"Ti"_s},
                {23, 2, u"a.html"_s, u"Title"_s}};
    for (const auto &row : rows) {
        auto items = ReadSystemItems(whole.first(row.size));
        EXPECT_EQ(items.size(), row.items) << row.size;
        EXPECT_EQ(items[2], row.page) << row.size;
        EXPECT_EQ(items[3], row.title) << row.size;
    }
}

/// With a step for each item that grows with what stands before it, this would take hours.
TEST(SystemItems, MayBeAsManyAsAnObjectHolds)
{
    const auto items = ReadSystemItems(version + Item(7, "").repeated(4 << 20) + Item(3, "Title"));
    EXPECT_EQ(items.size(), 2u);
    EXPECT_EQ(items.at(3), u"Title"_s);
}

QByteArray Pairs(quint32 count)
{
    QByteArray bytes;
    AppendLittle(bytes, 8 * count);
    for (quint32 i = 0; i < count; ++i) {
        AppendLittle(bytes, i + 100);
        AppendLittle(bytes, i * 3);
    }
    return bytes;
}

TEST(Contexts, AreNumbersAndOffsets)
{
    const auto entries = ReadContexts(Pairs(3));
    ASSERT_EQ(entries.size(), 3u);
    EXPECT_EQ(entries[0].number, 100u);
    EXPECT_EQ(entries[0].page, 0u);
    EXPECT_EQ(entries[2].number, 102u);
    EXPECT_EQ(entries[2].page, 6u);
}

TEST(Contexts, LeaveOutAPairThatIsCutOff)
{
    const QByteArray three = Pairs(3);
    EXPECT_EQ(ReadContexts(three.chopped(1)).size(), 2u);
    EXPECT_EQ(ReadContexts(three.chopped(8)).size(), 2u);
    EXPECT_TRUE(ReadContexts(three.first(4)).empty());
    EXPECT_TRUE(ReadContexts(three.first(3)).empty());
    EXPECT_TRUE(ReadContexts({}).empty());
}

TEST(Contexts, AreLimitedInNumber)
{
    EXPECT_EQ(ReadContexts(Pairs(65'536)).size(), 65'536u);
    EXPECT_EQ(ReadContexts(Pairs(65'537)).size(), 65'536u);
}

} // namespace
