#include "help/reader/archive.h"

#include "help/compiler/archive_writer.h"
#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// An archive of these objects in a file of its own.
struct ArchiveFile {
    explicit ArchiveFile(const std::map<QByteArray, QByteArray> &objects)
    {
        EXPECT_TRUE(WriteBytes(path, WriteArchive(objects)));
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"x.chm"_s);
};

TEST(Archive, HasTheBytesOfItsObjects)
{
    const QByteArray binary("\0\1\xFF", 3);
    const ArchiveFile file({{"/a.html", "A"}, {"/Sub/b.png", binary}, {"/empty", ""}});
    const auto archive = Archive::Open(file.path);
    ASSERT_TRUE(archive) << Describe(archive.error()).toStdString();
    EXPECT_EQ(archive->Path(), file.path);
    for (const auto &[name, bytes] : std::map<QString, QByteArray>{
             {u"a.html"_s, "A"}, {u"A.HTML"_s, "A"}, {u"sub/b.png"_s, binary}, {u"empty"_s, ""}}) {
        const auto object = archive->Object(name);
        ASSERT_TRUE(object) << name.toStdString();
        EXPECT_EQ(*object, bytes) << name.toStdString();
    }
    const auto none = archive->Object(u"b.png"_s);
    ASSERT_FALSE(none);
    EXPECT_EQ(none.error().text, u"The help has no page b.png."_s);
    EXPECT_EQ(none.error().file, file.path);
}

TEST(Archive, IsRefusedWhereItCannotBeTrusted)
{
    const ArchiveFile file(std::map<QByteArray, QByteArray>{{"/a.html", "A"}});
    const QByteArray whole = BytesOf(file.path);
    ASSERT_TRUE(WriteBytes(file.path, whole.chopped(1)));
    const auto damaged = Archive::Open(file.path);
    ASSERT_FALSE(damaged);
    EXPECT_EQ(damaged.error().text, u"This is not a help file, or it is damaged."_s);
    EXPECT_EQ(damaged.error().file, file.path);

    const auto absent = Archive::Open(file.path + u"x"_s);
    ASSERT_FALSE(absent);
    EXPECT_EQ(absent.error().text, u"No such file or directory"_s);
}

TEST(Archive, LocatesWhatAStoredPathMeans)
{
    const ArchiveFile file({{"/c.html", ""}, {"/Sub/c.html", ""}, {"/\xC3\x84.html", ""}});
    const auto archive = Archive::Open(file.path);
    ASSERT_TRUE(archive);
    const QString longest = u"x/"_s.repeated(253) + u"c.html"_s; // 512 characters
    const struct {
        const char *what;
        QString stored, page;
    } rows[] = {
        {"as it stands", u"c.html"_s, u"c.html"_s},
        {"a folder that exists", u"Sub/c.html"_s, u"Sub/c.html"_s},
        {"folders before it", u"/home/x/Sub/c.html"_s, u"Sub/c.html"_s},
        {"folders of another system", u"C:\\x\\Sub\\c.html"_s, u"Sub/c.html"_s},
        {"the longest that exists", u"x/Sub/y/c.html"_s, u"c.html"_s},
        {"case as it is stored", u"x/SUB/C.html"_s, u"SUB/C.html"_s},
        {"beyond ASCII", u"x/\u00C4.html"_s, u"\u00C4.html"_s},
        {"an anchor", u"x/c.html#a/b"_s, u"c.html#a/b"_s},
        {"an anchor alone", u"#c.html"_s, u""_s},
        {"a folder", u"x/Sub/"_s, u""_s},
        {"the folder of all", u"/"_s, u""_s},
        {"part of a name", u"x/xc.html"_s, u""_s},
        {"nothing", u""_s, u""_s},
        {"as long as it can be", longest, u"c.html"_s},
        {"too long", u"x"_s + longest, u""_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(archive->Locate(row.stored), row.page) << row.what;
}

} // namespace
