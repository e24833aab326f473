#include "vellumo_run.h"

#include "model/project_reader.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString waterPoint = DataFile(u"../../examples/WaterPoint.vmp"_s);

class MergeCommand : public VellumoRun
{
protected:
    /// An empty project where the bytes are none, which is a failure of the test.
    static Project Read(const QByteArray &bytes)
    {
        Result<Project> project = ReadProject(bytes);
        EXPECT_TRUE(project);
        return project ? std::move(*project) : Project();
    }
};

} // namespace

TEST_F(MergeCommand, PutsTheQuestionsOfAllIntoOneProject)
{
    const QString target = InFolder(u"both \u20ac.vmp"_s);
    EXPECT_EQ(Run({u"merge"_s, siteVisit, waterPoint, u"-o"_s, target}), 0);
    EXPECT_EQ(Out() + Err(), u""_s);
    const Project merged = Read(BytesOf(target));
    EXPECT_EQ(merged.FormName, u"SiteVisit"_s);
    EXPECT_EQ(merged.source.QuestionCount(), 10 + Read(BytesOf(waterPoint)).source.QuestionCount());
    EXPECT_EQ(Run({u"diff"_s, siteVisit, target}), 1);
    EXPECT_EQ(Out().count("\n@@ "_L1), merged.source.QuestionCount() - 10);
    EXPECT_EQ(Out().count(": added @@\n"_L1), merged.source.QuestionCount() - 10);
}

TEST_F(MergeCommand, TakesAProjectWithItself)
{
    EXPECT_EQ(Run({u"merge"_s, siteVisit, siteVisit, siteVisit}), 0);
    const Project merged = Read(QByteArray::fromStdString(out.str()));
    ASSERT_EQ(merged.source.QuestionCount(), 30);
    EXPECT_EQ(merged.source.Questions().Rows()[10].ColumnName, u"INSPECTOR(1)"_s);
    EXPECT_EQ(merged.source.Questions().Rows()[20].ColumnName, u"INSPECTOR(2)"_s);
}

TEST_F(MergeCommand, WritesInThePlaceOfAnInputOnlyAtTheEnd)
{
    const QString path = InFolder(u"a.vmp"_s);
    ASSERT_TRUE(QFile::copy(siteVisit, path));
    EXPECT_EQ(Run({u"merge"_s, path, InFolder(u"missing.vmp"_s), u"-o"_s, path}), 3);
    EXPECT_EQ(BytesOf(path), BytesOf(siteVisit));
    EXPECT_EQ(Run({u"merge"_s, path, path, u"-o"_s, path}), 0);
    EXPECT_EQ(Read(BytesOf(path)).source.QuestionCount(), 20);
}

TEST_F(MergeCommand, RefusesMoreQuestionsThanThereArePlaces)
{
    QStringList words = QStringList(13, siteVisit);
    words.prepend(u"merge"_s);
    const QString target = InFolder(u"all.vmp"_s);
    EXPECT_EQ(Run(words + QStringList{u"-o"_s, target}), 1);
    EXPECT_EQ(Err(),
              siteVisit + u": There are 8 places left for questions, and this project has 10.\n"_s);
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList());
}

TEST_F(MergeCommand, ReadsAndWritesStandardStreams)
{
    EXPECT_EQ(Run({u"merge"_s, u"-"_s, waterPoint, u"-o"_s, u"-"_s}, BytesOf(siteVisit)), 0);
    EXPECT_EQ(Read(QByteArray::fromStdString(out.str())).FormName, u"SiteVisit"_s);
}

TEST_F(MergeCommand, TellsProgramsInJson)
{
    const QString target = InFolder(u"both.vmp"_s);
    EXPECT_EQ(Run({u"merge"_s, u"--json"_s, siteVisit, waterPoint}), 2) << "no place for objects";
    EXPECT_EQ(Run({u"merge"_s, u"--json"_s, siteVisit, waterPoint, u"-o"_s, target}), 0);
    ASSERT_EQ(Objects().size(), 3);
    EXPECT_EQ(Objects()[1][u"code"_s], u"taken"_s);
    EXPECT_EQ(Objects()[1][u"input"_s], waterPoint);
    EXPECT_EQ(Objects()[2][u"code"_s], u"merged"_s);
    EXPECT_EQ(Objects()[2][u"file"_s], target);
}

TEST_F(MergeCommand, TellsWhatWasTakenOnlyWhenAllIsWritten)
{
    const QString missing = InFolder(u"missing.vmp"_s), target = InFolder(u"both.vmp"_s);
    EXPECT_EQ(Run({u"merge"_s, u"--json"_s, siteVisit, missing, waterPoint, u"-o"_s, target}), 3);
    ASSERT_EQ(Objects().size(), 5) << out.str();
    EXPECT_EQ(Objects()[0][u"kind"_s], u"error"_s);
    const QStringList inputs = {siteVisit, missing, waterPoint};
    const QStringList codes = {u"not-taken"_s, u"failed"_s, u"not-taken"_s};
    const QList<int> exits = {0, 3, 0};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(Objects()[i + 1][u"input"_s], inputs[i]);
        EXPECT_EQ(Objects()[i + 1][u"code"_s], codes[i]);
        EXPECT_EQ(Objects()[i + 1][u"exit"_s], exits[i]);
    }
    EXPECT_EQ(Objects()[4][u"code"_s], u"failed"_s);
    EXPECT_EQ(Objects()[4][u"file"_s], target);
    EXPECT_EQ(Objects()[4][u"exit"_s], 3);
    EXPECT_EQ(Run({u"merge"_s, u"--json"_s, siteVisit, waterPoint, u"-o"_s, m_folder.path()}), 5);
    ASSERT_EQ(Objects().size(), 4) << out.str();
    EXPECT_EQ(Objects()[0][u"code"_s], u"not-written"_s);
    EXPECT_EQ(Objects()[1][u"code"_s], u"not-taken"_s);
    EXPECT_EQ(Objects()[2][u"code"_s], u"not-taken"_s);
    EXPECT_EQ(Objects()[3][u"code"_s], u"failed"_s);
    EXPECT_EQ(Objects()[3][u"file"_s], m_folder.path());
}

TEST_F(MergeCommand, RefusesWhatMakesNoSense)
{
    EXPECT_EQ(Run({u"merge"_s, siteVisit}), 2);
    EXPECT_TRUE(Err().startsWith("vellumo: Which projects?"_L1)) << err.str();
    EXPECT_EQ(Run({u"merge"_s, siteVisit, DataFile(u"palm/text.prc"_s)}), 3);
    EXPECT_EQ(Out(), u""_s);
    EXPECT_EQ(Run({u"merge"_s, siteVisit, waterPoint, u"-o"_s, m_folder.path()}), 5);
    EXPECT_EQ(Err(), m_folder.path() + u": Is a folder\n"_s);
}

TEST_F(MergeCommand, WritesNothingThatCouldNotBeReadAgain)
{
    const QString path = InFolder(u"a.vmp"_s), target = InFolder(u"b.vmp"_s);
    ASSERT_TRUE(WriteBytes(path, BytesOf(siteVisit).replace("<![CDATA[Inspector]]>", "a]]&gt;b")));
    EXPECT_EQ(Run({u"merge"_s, waterPoint, path, u"-o"_s, target}), 5);
    EXPECT_TRUE(Err().contains("title"_L1)) << err.str();
    EXPECT_FALSE(QFile::exists(target));
}
