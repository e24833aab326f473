#include "model/project_file.h"

#include "support/files.h"
#include "support/full_disk.h"
#include "support/ordinary_user.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

class ProjectFile : public testing::Test
{
protected:
    QString InFolder(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

Project LoadedFrom(const QString &path)
{
    Project project;
    project.path = path;
    EXPECT_TRUE(LoadProject(project));
    return project;
}

} // namespace

TEST_F(ProjectFile, LoadsWhatTheCurrentPathNames)
{
    const QString path = DataFile(u"projects/SiteVisit.vmp"_s);
    const Project project = LoadedFrom(path);
    EXPECT_EQ(project.path, path);
    EXPECT_EQ(project.FormName, u"SiteVisit"_s);
    EXPECT_EQ(project.source.QuestionCount(), 10);
}

TEST_F(ProjectFile, ARefusedFileLeavesTheProjectAndEmptiesThePath)
{
    const QString path = InFolder(u"broken.vmp"_s);
    QByteArray bytes = BytesOf(DataFile(u"projects/SiteVisit.vmp"_s));
    ASSERT_TRUE(WriteBytes(path, bytes.replace("</rcChilds>", "</rcChild>")));

    Project project;
    project.path = path;
    const Outcome outcome = LoadProject(project);
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.error().file, path);
    EXPECT_GT(outcome.error().line, 80) << "where the end tag stands";
    EXPECT_EQ(project.path, u""_s);
    EXPECT_EQ(project.FormName, u""_s);
    EXPECT_EQ(project.source.QuestionCount(), 0);
    EXPECT_EQ(project.source.MaxId(), 1);
}

TEST_F(ProjectFile, SaysWhyAFileCannotBeRead)
{
    const auto reasonFor = [](const QString &path) {
        Project project;
        project.path = path;
        const Outcome outcome = LoadProject(project);
        EXPECT_EQ(project.path, u""_s);
        return outcome ? u"loaded"_s : outcome.error().text;
    };
    EXPECT_EQ(reasonFor(InFolder(u"none.vmp"_s)), u"No such file or directory"_s);
    EXPECT_EQ(reasonFor(m_folder.path()), u"Is a folder"_s);
    EXPECT_NE(reasonFor(u""_s), u"loaded"_s);

    QFile large(InFolder(u"large.vmp"_s));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(16 * 1024 * 1024 + 1));
    EXPECT_EQ(reasonFor(large.fileName()), u"The file is larger than any project can be"_s);
}

TEST_F(ProjectFile, SavingWritesTheSameBytesAndSetsThePath)
{
    const QString original = DataFile(u"projects/edge-latin.vmp"_s);
    Project project = LoadedFrom(original);
    const QString copy = InFolder(u"copy.vmp"_s);
    ASSERT_TRUE(SaveProject(project, copy));
    EXPECT_EQ(project.path, copy);
    EXPECT_EQ(BytesOf(copy), BytesOf(original));
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList{u"copy.vmp"_s}) << "nothing stays behind";
}

TEST_F(ProjectFile, AFileThatCannotBeWrittenStaysWhole)
{
    const QString path = InFolder(u"kept.vmp"_s);
    ASSERT_TRUE(WriteBytes(path, "what stood there"));
    Project project;
    project.path = u"before"_s;

    project.FormName = u"\u03A9mega"_s;
    const Outcome lacking = SaveProject(project, path);
    ASSERT_FALSE(lacking);
    EXPECT_TRUE(lacking.error().text.startsWith(u"The form name has the character"));
    EXPECT_EQ(BytesOf(path), "what stood there");
    EXPECT_EQ(project.path, u"before"_s);

    project.FormName = u"Fine"_s;
    ASSERT_TRUE(QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::ExeOwner |
                                                           QFile::ReadOther | QFile::ExeOther));
    {
        const AsOrdinaryUser ordinary;
        const Outcome forbidden = SaveProject(project, path);
        ASSERT_FALSE(forbidden);
        EXPECT_EQ(forbidden.error().text, u"Permission denied"_s);
    }
    QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(BytesOf(path), "what stood there");
    EXPECT_EQ(project.path, u"before"_s);
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList{u"kept.vmp"_s});
}

TEST_F(ProjectFile, AFolderThatVanishedIsSaid)
{
    Project project;
    EXPECT_FALSE(SaveProject(project, InFolder(u"gone/x.vmp"_s)));
    EXPECT_EQ(project.path, u""_s);
}

TEST_F(ProjectFile, AFullDiskIsNoticedWhateverTheSize)
{
    const QString path = InFolder(u"kept.vmp"_s);
    ASSERT_TRUE(WriteBytes(path, "what stood there"));
    for (const int size : {1001, 3000, 16384, 100000}) {
        SCOPED_TRACE(size);
        const FullDisk full(1000);
        const Outcome outcome = ReplaceFile(path, QByteArray(size, 'x'));
        ASSERT_FALSE(outcome);
        EXPECT_EQ(outcome.error().text, u"File too large"_s);
    }
    EXPECT_EQ(BytesOf(path), "what stood there");
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList{u"kept.vmp"_s});
}
