#include "help/help_topics.h"
#include "help/html_text.h"
#include "help/reader/help_file.h"
#include "support/files.h"
#include "support/print.h"

#include <QDirIterator>
#include <QProcess>
#include <gtest/gtest.h>

#include <set>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString helpPath = QStringLiteral(HELP_FILE);
const QDir sources(QStringLiteral(HELP_SOURCES));

/// Every file of the folder help that belongs into the help file.
QStringList SourceNames()
{
    QStringList names;
    QDirIterator files(sources.path(), {u"*.html"_s, u"*.hhc"_s, u"*.png"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        names += sources.relativeFilePath(files.next());
    return names;
}

TEST(ProductHelp, HoldsEveryFileAsAnotherProgramReadsIt)
{
    const QTemporaryDir folder;
    QProcess unpack;
    unpack.start(u"7z"_s, {u"x"_s, u"-y"_s, u"-o"_s + folder.path(), helpPath});
    ASSERT_TRUE(unpack.waitForFinished()) << "the package p7zip-full has 7z";
    ASSERT_EQ(unpack.exitCode(), 0) << unpack.readAll().toStdString();

    EXPECT_GE(SourceNames().size(), 20);
    for (const QString &name : SourceNames()) {
        const QByteArray packed = BytesOf(folder.filePath(name));
        EXPECT_GT(packed.size(), 0) << name.toStdString();
        EXPECT_EQ(packed, BytesOf(sources.filePath(name))) << name.toStdString();
    }
}

TEST(ProductHelp, LeadsFromEachNumberToItsPage)
{
    const auto help = HelpFile::Open(helpPath);
    ASSERT_TRUE(help) << Describe(help.error()).toStdString();
    EXPECT_EQ(help->Title(), u"Vellumo Designer Help"_s);
    EXPECT_EQ(help->TitleOf(help->DefaultPage()), u"Welcome to Vellumo Designer"_s);

    const struct {
        quint32 context;
        QString title;
    } rows[] = {
        {1, u"What identifies a Vellsheet"_s},
        {2, u"Naming your Vellsheet"_s},
        {3, u"The version number"_s},
        {4, u"The description"_s},
        {5, u"Designing your questions"_s},
        {6, u"Welcome to Vellumo Designer"_s},
        {10, u"Question preview"_s},
        {11, u"Uploading saved data"_s},
        {12, u"The CSV file and its folder"_s},
        {13, u"The final review"_s},
        {14, u"The error list"_s},
        {15, u"The question wizard"_s},
        {16, u"What fits the screen"_s},
        {17, u"The ten types of questions"_s},
        {18, u"Items of a list"_s},
        {19, u"Properties of a question"_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(help->TitleOf(help->PageOf(row.context)), row.title) << row.context;
}

TEST(ProductHelp, ListsEveryPageInItsContentsOnce)
{
    const auto help = HelpFile::Open(helpPath);
    ASSERT_TRUE(help);
    std::multiset<QString> listed;
    for (const ContentsEntry &entry : help->Contents()) {
        EXPECT_FALSE(entry.title.isEmpty());
        listed.insert(entry.page);
    }
    std::multiset<QString> pages;
    for (const QString &name : SourceNames())
        if (name.endsWith(u".html"))
            pages.insert(name);
    EXPECT_EQ(listed, pages);
}

TEST(ProductHelp, LeavesColoursToTheReader)
{
    for (const QString &name : SourceNames()) {
        if (!name.endsWith(u".html"))
            continue;
        const QByteArray bytes = BytesOf(sources.filePath(name));
        EXPECT_TRUE(std::ranges::all_of(bytes, [](char c) { return c > 0; })) << name.toStdString();
        for (const HtmlTag &tag : TagsOf(DecodeHtml(bytes)))
            for (const QString &attribute :
                 {u"color"_s, u"bgcolor"_s, u"text"_s, u"link"_s, u"style"_s})
                EXPECT_FALSE(tag.attributes.contains(attribute))
                    << name.toStdString() << ": " << attribute.toStdString();
    }
}

} // namespace
