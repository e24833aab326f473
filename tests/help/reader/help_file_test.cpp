#include "help/reader/help_file.h"

#include "help/compiler/archive_writer.h"
#include "help/compiler/help_compiler.h"
#include "help/little_endian.h"
#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

constexpr HelpTopic topics[] = {{1, QLatin1StringView("a.html")},
                                {7, QLatin1StringView("b/c.html")}};
constexpr char contents[] = R"(<UL><LI><OBJECT type="text/sitemap"><param name="Name" value="A">)"
                            R"(<param name="Local" value="a.html"></OBJECT></UL>)";

QByteArray SmallHelp()
{
    const auto help = CompileHelp({u"Small"_s,
                                   u"a.html"_s,
                                   u"toc.hhc"_s,
                                   topics,
                                   {{u"a.html"_s, "<title>The A</title>"},
                                    {u"b/c.html"_s, "<title>The C</title>"},
                                    {u"b/untitled.html"_s, "none"},
                                    {u"toc.hhc"_s, contents}}});
    return help ? *help : QByteArray();
}

/// Opens help files from one temporary place.
struct Reader {
    Result<HelpFile> Open(const QByteArray &bytes) const
    {
        EXPECT_TRUE(WriteBytes(path, bytes));
        return HelpFile::Open(path);
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"x.chm"_s);
};

TEST(HelpFile, FindsWhatTheCompilerWrote)
{
    const Reader reader;
    const auto help = reader.Open(SmallHelp());
    ASSERT_TRUE(help) << Describe(help.error()).toStdString();
    EXPECT_EQ(help->Title(), u"Small"_s);
    EXPECT_EQ(help->DefaultPage(), u"a.html"_s);
    EXPECT_EQ(help->PageOf(1), u"a.html"_s);
    EXPECT_EQ(help->PageOf(7), u"b/c.html"_s);
    EXPECT_EQ(help->PageOf(2), u"a.html"_s) << "a number that it does not know";
    EXPECT_EQ(help->TitleOf(u"b/c.html"_s), u"The C"_s);
    EXPECT_EQ(help->TitleOf(u"b/untitled.html"_s), u"b/untitled.html"_s);

    const auto page = help->Object(u"b/untitled.html"_s);
    ASSERT_TRUE(page);
    EXPECT_EQ(*page, "none");
    ASSERT_EQ(help->Contents().size(), 1u);
    EXPECT_EQ(help->Contents()[0].title, u"A"_s);
    EXPECT_EQ(help->Contents()[0].page, u"a.html"_s);
}

TEST(HelpFile, HasAnErrorForWhatIsNotThere)
{
    const Reader reader;
    const auto absent = HelpFile::Open(reader.path);
    ASSERT_FALSE(absent);
    EXPECT_EQ(absent.error().text, u"No such file or directory"_s);
    EXPECT_EQ(absent.error().file, reader.path);
    EXPECT_FALSE(HelpFile::Open(reader.folder.path()));

    const auto help = reader.Open(SmallHelp());
    ASSERT_TRUE(help);
    const auto page = help->Object(u"gone.html"_s);
    ASSERT_FALSE(page);
    EXPECT_EQ(page.error().text, u"The help has no page gone.html."_s);
}

/// Objects of a help file as another compiler might write them: stored paths with folders before.
std::map<QByteArray, QByteArray> ForeignObjects()
{
    const QByteArray page = "/home/someone/build/Sub\\c.html";
    const QByteArray system = QByteArray("\x03\0\0\0", 4) + QByteArray("\x02\0\x0F\0", 4) +
                              "C:\\old\\start.hm" + QByteArray("\x00\0\x08\0", 4) + "toc.hhc" +
                              '\0';
    return {{"/Sub/c.html", "<title>C</title>"},
            {"/toc.hhc", R"(<UL><OBJECT type="text/sitemap"><param name="Name" value="C">)"
                         R"(<param name="Local" value="x/Sub/c.html#part"></OBJECT>)"},
            {"/#SYSTEM", system},
            {"/#STRINGS", '\0' + page + '\0'},
            {"/#IVB", QByteArray("\x10\0\0\0\x05\0\0\0\x01\0\0\0\x06\0\0\0\xFF\xFF\0\0", 20)}};
}

TEST(HelpFile, DropsLeadingFoldersOfStoredPaths)
{
    const Reader reader;
    const auto help = reader.Open(WriteArchive(ForeignObjects()));
    ASSERT_TRUE(help) << Describe(help.error()).toStdString();
    EXPECT_EQ(help->PageOf(5), u"Sub/c.html"_s);
    ASSERT_EQ(help->Contents().size(), 1u);
    EXPECT_EQ(help->Contents()[0].page, u"Sub/c.html#part"_s);
}

/// A help file with so many topics, each of which is stored with so many folders before it.
QByteArray TopicsInFolders(int count, int folders)
{
    QByteArray strings(1, '\0'), pairs;
    std::map<QByteArray, QByteArray> objects;
    for (int i = 0; i < count; ++i) {
        const QByteArray page = QByteArray::number(i) + ".html";
        objects['/' + page] = "";
        AppendLittle(pairs, quint32(i));
        AppendLittle(pairs, quint32(strings.size()));
        strings += QByteArray("a/").repeated(folders) + page + '\0';
    }
    QByteArray length;
    AppendLittle(length, quint32(pairs.size()));
    objects["/#SYSTEM"] = QByteArray("\x03\0\0\0\x02\0\x07\0", 8) + "0.html" + '\0';
    objects["/#STRINGS"] = strings;
    objects["/#IVB"] = length + pairs;
    return WriteArchive(objects);
}

/// How often this process has read from a file until now, as the system counts it.
qint64 ReadsUntilNow()
{
    const QList<QByteArray> lines = BytesOf(u"/proc/self/io"_s).split('\n');
    for (const QByteArray &line : lines)
        if (line.startsWith("syscr: "))
            return line.sliced(7).toLongLong();
    ADD_FAILURE() << "the system does not count";
    return 0;
}

/// A topic's page was once looked up in the file anew for each folder in front of it.
TEST(HelpFile, IsReadLessThanOncePerTopic)
{
    const Reader reader;
    for (const int count : {1000, 4000})
        for (const int folders : {0, 240}) {
            SCOPED_TRACE(testing::Message() << count << " topics in " << folders << " folders");
            ASSERT_TRUE(WriteBytes(reader.path, TopicsInFolders(count, folders)));
            const qint64 before = ReadsUntilNow();
            const auto help = HelpFile::Open(reader.path);
            EXPECT_LT(ReadsUntilNow() - before, count / 4);
            ASSERT_TRUE(help);
            const QString last = QString::number(count - 1) + u".html"_s;
            EXPECT_EQ(help->PageOf(quint32(count - 1)), last);
        }
}

TEST(HelpFile, ReadsWhatAnotherProgramCompressed)
{
    const auto help = HelpFile::Open(DataFile(u"help/compressed.chm"_s));
    ASSERT_TRUE(help) << Describe(help.error()).toStdString();
    EXPECT_EQ(help->Title(), u"Compressed"_s);
    EXPECT_EQ(help->DefaultPage(), u"p1.html"_s);
    EXPECT_EQ(help->PageOf(2), u"p2.html"_s);
    EXPECT_EQ(help->TitleOf(u"p2.html"_s), u"Page 2"_s);
    const auto page = help->Object(u"p3.html"_s);
    ASSERT_TRUE(page);
    EXPECT_TRUE(page->startsWith("<html><head><title>Page 3</title>"));
    EXPECT_TRUE(page->endsWith("a</body></html>"));
    EXPECT_GT(page->size(), 40000);
}

TEST(HelpFile, BeginsWithTheContentsWhereTheDefaultPageIsGone)
{
    const Reader reader;
    const auto help = reader.Open(WriteArchive(ForeignObjects()));
    ASSERT_TRUE(help);
    EXPECT_EQ(help->DefaultPage(), u"Sub/c.html#part"_s);
    EXPECT_EQ(help->PageOf(6), u"Sub/c.html#part"_s) << "its text lies beyond the texts";

    auto objects = ForeignObjects();
    objects.erase("/toc.hhc");
    EXPECT_FALSE(reader.Open(WriteArchive(objects))) << "no page to begin with";
}

} // namespace
