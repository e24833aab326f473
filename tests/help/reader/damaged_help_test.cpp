#include "help/compiler/archive_writer.h"
#include "help/compiler/help_compiler.h"
#include "help/reader/help_file.h"
#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

constexpr HelpTopic largeTopics[] = {{1, QLatin1StringView("page1.html")},
                                     {2, QLatin1StringView("page2.html")}};

/// A help file with so many pages that its directory has an index.
QByteArray LargeHelp()
{
    HelpSource source{u"Large"_s, u"page0.html"_s, u"toc.hhc"_s, largeTopics, {}};
    source.files[u"toc.hhc"_s] = R"(<UL><OBJECT type="text/sitemap">)"
                                 R"(<param name="Name" value="A"></OBJECT></UL>)";
    for (int i = 0; i < 300; ++i)
        source.files[u"page%1.html"_s.arg(i)] = "<title>Page</title>";
    const auto help = CompileHelp(source);
    return help ? *help : QByteArray();
}

/// Reads everything that a viewer would ask of a help file; gives whether it opened.
bool ReadAll(const QString &path)
{
    const auto help = HelpFile::Open(path);
    if (!help)
        return false;
    for (quint32 context = 0; context < 4; ++context) {
        const QString page = help->PageOf(context);
        EXPECT_FALSE(page.isEmpty());
        EXPECT_FALSE(help->TitleOf(page).isEmpty());
        const auto bytes = help->Object(page);
        EXPECT_TRUE(!bytes || bytes->size() <= 16 << 20);
    }
    return true;
}

TEST(DamagedHelp, IsRefusedWhereverItWasCutOff)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"x.chm"_s);
    const QByteArray whole = LargeHelp();
    ASSERT_TRUE(WriteBytes(path, whole));
    ASSERT_TRUE(ReadAll(path));

    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    for (qsizetype size = whole.size() - 1; size >= 0; --size) {
        ASSERT_TRUE(file.resize(size));
        ASSERT_FALSE(ReadAll(path)) << size;
    }
}

/// Damages a help file in a few bytes, many times over; gives how often it was refused.
int RefusedOf(int runs, const QByteArray &whole)
{
    const QTemporaryDir folder;
    // Written over in place: a file made anew each time would wait for the disk.
    QFile file(folder.filePath(u"x.chm"_s));
    EXPECT_TRUE(file.open(QIODevice::ReadWrite));
    std::mt19937 random(20260119);
    int refused = 0;
    for (int run = 0; run < runs; ++run) {
        QByteArray damaged = whole;
        for (unsigned flips = 1 + random() % 4; flips > 0; --flips) {
            // Every other run damages only the headers and what begins the directory.
            const auto part = run % 2 ? quint32(0x100) : quint32(damaged.size());
            damaged[qsizetype(random() % part)] = char(random());
        }
        EXPECT_TRUE(file.seek(0) && file.write(damaged) == damaged.size() && file.flush());
        refused += !ReadAll(file.fileName());
    }
    return refused;
}

TEST(DamagedHelp, NeverLeadsTheReaderAstray)
{
    constexpr int runs = 2000;
    const int refused = RefusedOf(runs, LargeHelp());
    EXPECT_GT(refused, runs / 10);
    EXPECT_LT(refused, runs);
}

TEST(DamagedHelp, NeverLeadsTheDecompressionAstray)
{
    constexpr int runs = 1000;
    const int refused = RefusedOf(runs, BytesOf(DataFile(u"help/compressed.chm"_s)));
    EXPECT_GT(refused, runs / 10);
    EXPECT_LT(refused, runs);
}

TEST(DamagedHelp, MayNotSteerTheDecompressionWrongly)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"x.chm"_s);
    const QByteArray whole = BytesOf(DataFile(u"help/compressed.chm"_s));
    const qsizetype control = whole.indexOf("LZXC");
    ASSERT_GT(control, 0);
    ASSERT_EQ(whole.at(control + 74), 6) << "the number of blocks";
    const struct {
        const char *what;
        qsizetype offset;
        char value;
    } rows[] = {{"version", 4, 3},
                {"reset interval", 8, 0},
                {"window size", 12, 0},
                {"window size", 12, 3},
                {"window size", 13, 1},
                {"windows for a reset", 16, 0},
                // The reset table lies 70 bytes behind.
                {"more blocks than the table has", 74, 7},
                {"fewer blocks than pages", 74, 1},
                {"place of the blocks", 82, 0x30},
                {"a last block too long", 96, 1},
                {"block size", 103, 0x40},
                {"blocks out of order", 120, 1}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        QByteArray damaged = whole;
        ASSERT_NE(damaged.at(control + row.offset), row.value);
        damaged[control + row.offset] = row.value;
        ASSERT_TRUE(WriteBytes(path, damaged));
        EXPECT_FALSE(ReadAll(path));
    }
}

TEST(DamagedHelp, MayNotGoRoundInItsIndex)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"x.chm"_s);
    QByteArray help = LargeHelp();
    const qsizetype index = help.indexOf("PMGI");
    ASSERT_GT(index, 0);
    const qsizetype firstName = static_cast<uchar>(help.at(index + 8));
    const qsizetype chunks = (index - 0xCC) / 0x1000;
    help[index + 9 + firstName] = char(chunks); // the index itself
    ASSERT_TRUE(WriteBytes(path, help));
    EXPECT_FALSE(ReadAll(path));
}

TEST(DamagedHelp, MayHaveNoPageBeyondTheBound)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"x.chm"_s);
    const QByteArray system = QByteArray("\x03\0\0\0\x02\0\x07\0", 8) + "a.html" + '\0';
    std::map<QByteArray, QByteArray> objects{{"/#SYSTEM", system}, {"/a.html", ""}};
    objects["/a.html"] = QByteArray(16 << 20, ' ');
    ASSERT_TRUE(WriteBytes(path, WriteArchive(objects)));
    const auto largest = HelpFile::Open(path);
    ASSERT_TRUE(largest);
    EXPECT_TRUE(largest->Object(u"a.html"_s));

    objects["/a.html"] += ' ';
    ASSERT_TRUE(WriteBytes(path, WriteArchive(objects)));
    const auto over = HelpFile::Open(path);
    ASSERT_TRUE(over);
    const auto page = over->Object(u"a.html"_s);
    ASSERT_FALSE(page);
    EXPECT_EQ(page.error().text, u"The page a.html is too large."_s);
}

} // namespace
