#include "model/project_file.h"

#include "support/files.h"
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

} // namespace

TEST_F(ProjectFile, LoadsWhatThePathNames)
{
    const Result<Project> project = LoadProject(DataFile(u"projects/SiteVisit.vmp"_s));
    ASSERT_TRUE(project);
    EXPECT_EQ(project->FormName, u"SiteVisit"_s);
    EXPECT_EQ(project->source.QuestionCount(), 10);
    EXPECT_EQ(project->source.GetPosition(), 0) << "the first question is the current one";
}

TEST_F(ProjectFile, ARefusedFileIsNamedWithTheLine)
{
    const QString path = InFolder(u"broken.vmp"_s);
    QByteArray bytes = BytesOf(DataFile(u"projects/SiteVisit.vmp"_s));
    ASSERT_TRUE(WriteBytes(path, bytes.replace("</rcChilds>", "</rcChild>")));

    const Result<Project> project = LoadProject(path);
    ASSERT_FALSE(project);
    EXPECT_EQ(project.error().file, path);
    EXPECT_GT(project.error().line, 80) << "where the end tag stands";
}

TEST_F(ProjectFile, SaysWhyAFileCannotBeRead)
{
    const auto reasonFor = [](const QString &path) {
        const Result<Project> project = LoadProject(path);
        return project ? u"loaded"_s : project.error().text;
    };
    EXPECT_EQ(reasonFor(InFolder(u"none.vmp"_s)), u"No such file or directory"_s);
    EXPECT_EQ(reasonFor(m_folder.path()), u"Is a folder"_s);
    EXPECT_NE(reasonFor(u""_s), u"loaded"_s);

    QFile large(InFolder(u"large.vmp"_s));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(16LL * 1024 * 1024 + 1));
    EXPECT_EQ(reasonFor(large.fileName()), u"The file is larger than any project can be"_s);
}

TEST_F(ProjectFile, SavingWritesTheSameBytes)
{
    const QString original = DataFile(u"projects/edge-latin.vmp"_s);
    const Result<Project> project = LoadProject(original);
    ASSERT_TRUE(project);
    const QString copy = InFolder(u"copy.vmp"_s);
    ASSERT_TRUE(SaveProject(*project, copy));
    EXPECT_EQ(BytesOf(copy), BytesOf(original));
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList{u"copy.vmp"_s}) << "nothing stays behind";
}

TEST_F(ProjectFile, AFileThatCannotBeWrittenStaysWhole)
{
    const QString path = InFolder(u"kept.vmp"_s);
    ASSERT_TRUE(WriteBytes(path, "what stood there"));
    Project project;

    project.FormName = u"\u03A9mega"_s;
    const Outcome lacking = SaveProject(project, path);
    ASSERT_FALSE(lacking);
    EXPECT_TRUE(lacking.error().text.startsWith(u"The form name has the character"));
    EXPECT_EQ(BytesOf(path), "what stood there");

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
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList{u"kept.vmp"_s});
}

TEST_F(ProjectFile, AFolderThatVanishedIsSaid)
{
    EXPECT_FALSE(SaveProject(Project(), InFolder(u"gone/x.vmp"_s)));
}

TEST_F(ProjectFile, KnowsWhetherItHoldsSomethingElse)
{
    const QString path = InFolder(u"a.vmp"_s);
    Fingerprint saved, loaded;
    ASSERT_TRUE(SaveProject(Project(), path, &saved));
    ASSERT_TRUE(LoadProject(path, &loaded));
    EXPECT_EQ(loaded, saved);
    EXPECT_FALSE(HoldsSomethingElse(path, saved));
    ASSERT_TRUE(WriteBytes(path, BytesOf(path)));
    EXPECT_FALSE(HoldsSomethingElse(path, saved)) << "the same bytes, written again";
    EXPECT_TRUE(HoldsSomethingElse(DataFile(u"projects/SiteVisit.vmp"_s), saved));
    EXPECT_FALSE(HoldsSomethingElse(DataFile(u"projects/SiteVisit.vmp"_s), {}));

    QFile file(path);
    ASSERT_TRUE(file.resize(file.size() - 1));
    EXPECT_TRUE(HoldsSomethingElse(path, saved));
    ASSERT_TRUE(file.resize(16LL * 1024 * 1024 + 1));
    EXPECT_TRUE(HoldsSomethingElse(path, saved)) << "too large to be a project";
    ASSERT_TRUE(file.remove());
    EXPECT_FALSE(HoldsSomethingElse(path, saved)) << "gone";
    EXPECT_FALSE(HoldsSomethingElse(m_folder.path(), saved)) << "no file";
}
