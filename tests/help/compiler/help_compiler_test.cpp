#include "help/compiler/help_compiler.h"

#include "help/compiler/archive_writer.h"
#include "support/page.h"
#include "support/print.h"

#include <QFileInfo>
#include <QProcess>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

constexpr HelpTopic topics[] = {{1, QLatin1StringView("a.html")},
                                {7, QLatin1StringView("b/c.html")}};

HelpSource SmallSource()
{
    return {u"Small"_s,
            u"a.html"_s,
            u"toc.hhc"_s,
            topics,
            {{u"a.html"_s, "<title>A</title>"},
             {u"b/c.html"_s, "<title>C</title>"},
             {u"b/d.png"_s, QByteArray("\x89PNG\0\xFF", 6)},
             {u"empty.html"_s, ""},
             {u"toc.hhc"_s, "<ul></ul>"}}};
}

/// What 7-Zip, which shares nothing with our reader, makes of a help file: each object's bytes.
std::map<QString, QByteArray> Unpacked(const QByteArray &help)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"x.chm"_s), out = folder.filePath(u"out"_s);
    EXPECT_TRUE(WriteBytes(path, help));
    QProcess unpack;
    unpack.start(u"7z"_s, {u"x"_s, u"-y"_s, u"-o"_s + out, path});
    EXPECT_TRUE(unpack.waitForFinished()) << "the package p7zip-full has 7z";
    EXPECT_EQ(unpack.exitCode(), 0) << unpack.readAll().toStdString();

    std::map<QString, QByteArray> objects;
    QStringList folders{u""_s};
    while (!folders.isEmpty()) {
        const QString below = folders.takeFirst();
        for (const QString &name : NamesIn(out + u'/' + below)) {
            const QString full = out + u'/' + below + name;
            if (QFileInfo(full).isDir())
                folders += below + name + u'/';
            else
                objects[below + name] = BytesOf(full);
        }
    }
    return objects;
}

/// docs/help-file.md has it.
TEST(HelpCompiler, MakesTheExampleOfItsPage)
{
    constexpr HelpTopic topic[] = {{7, QLatin1StringView("a.html")}};
    const auto help = CompileHelp({u"Small"_s,
                                   u"a.html"_s,
                                   u"toc.hhc"_s,
                                   topic,
                                   {{u"a.html"_s, "<p>Hello.</p>"}, {u"toc.hhc"_s, "<ul></ul>"}}});
    ASSERT_TRUE(help) << help.error().text.toStdString();
    const QStringList dumps = ExamplesIn(Page(u"help-file.md"_s), u"dump"_s);
    ASSERT_EQ(dumps.size(), 1);
    EXPECT_EQ(BytesOfDump(dumps[0]).toHex(' ').toStdString(), help->toHex(' ').toStdString());
}

TEST(HelpCompiler, IsReadByAnotherProgram)
{
    const HelpSource source = SmallSource();
    const auto help = CompileHelp(source);
    ASSERT_TRUE(help);
    const auto objects = Unpacked(*help);
    for (const auto &[name, bytes] : source.files) {
        ASSERT_TRUE(objects.contains(name)) << name.toStdString();
        EXPECT_EQ(objects.at(name), bytes) << name.toStdString();
    }
}

TEST(HelpCompiler, WritesDirectoriesOfManyChunks)
{
    std::map<QByteArray, QByteArray> objects;
    for (int i = 0; i < 1000; ++i)
        objects["/pages/" + QByteArray::number(i) + ".html"] = QByteArray(i, 'x');
    const auto unpacked = Unpacked(WriteArchive(objects));
    EXPECT_EQ(unpacked.size(), objects.size());
    for (const auto &[name, bytes] : objects) {
        const auto found = unpacked.find(QString::fromLatin1(name.sliced(1)));
        ASSERT_NE(found, unpacked.end()) << name.toStdString();
        EXPECT_EQ(found->second, bytes) << name.toStdString();
    }
}

TEST(HelpCompiler, GivesTheSameBytesAgain)
{
    const auto once = CompileHelp(SmallSource()), again = CompileHelp(SmallSource());
    ASSERT_TRUE(once && again);
    EXPECT_EQ(*once, *again);
    EXPECT_EQ(once->sliced(16, 4), QByteArray(4, '\0')) << "the time stamp of the header";
}

TEST(HelpCompiler, RefusesToNameAFileThatIsNotThere)
{
    for (const QString &name : {u"a.html"_s, u"b/c.html"_s, u"toc.hhc"_s}) {
        HelpSource source = SmallSource();
        source.files.erase(name);
        const auto help = CompileHelp(source);
        ASSERT_FALSE(help) << name.toStdString();
        EXPECT_EQ(help.error().text, u"The help has no file %1."_s.arg(name));
    }
    HelpSource source = SmallSource();
    source.defaultPage = u"start.html"_s;
    EXPECT_FALSE(CompileHelp(source));
}

} // namespace
