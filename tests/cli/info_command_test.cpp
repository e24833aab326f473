#include "vellumo_run.h"

#include "model/project_file.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {
using InfoCommand = VellumoRun;
}

TEST_F(InfoCommand, TellsWhatIsInAProject)
{
    EXPECT_EQ(Run({u"info"_s, goldenNestbox}), 0);
    EXPECT_TRUE(Out().startsWith(u"format: project\nname: Nestbox\n")) << Out().toStdString();
    EXPECT_TRUE(Out().contains(u"\nsize: 2270\nquestions: 6\nitems: 5\n")) << Out().toStdString();
    EXPECT_TRUE(Out().contains(u"\n2. Pulldown List, SPECIES: Species\n")) << Out().toStdString();
}

TEST_F(InfoCommand, TellsWhatIsInADatabase)
{
    EXPECT_EQ(Run({u"info"_s, DataFile(u"palm/text.prc"_s)}), 0);
    EXPECT_EQ(Out(), u"format: database\n"
                     "name: text\n"
                     "type: kelp\n"
                     "creator: Wmpt\n"
                     "size: 703\n"
                     "resources: 11\n"
                     "questions: 1\n"
                     "1. Text, FINDER: Finder\n"_s);
}

TEST_F(InfoCommand, TellsProgramsInJson)
{
    EXPECT_EQ(Run({u"info"_s, u"--json"_s, DataFile(u"palm/text.prc"_s)}), 0);
    ASSERT_EQ(Objects().size(), 1);
    const QJsonObject info = Objects()[0];
    EXPECT_EQ(info[u"kind"_s], u"result"_s);
    EXPECT_EQ(info[u"code"_s], u"info"_s);
    EXPECT_EQ(info[u"format"_s], u"database"_s);
    EXPECT_EQ(info[u"size"_s], 703);
    EXPECT_EQ(info[u"titles"_s], QJsonArray{u"Finder"_s});
    EXPECT_EQ(info[u"columnNames"_s], QJsonArray{u"FINDER"_s});
    EXPECT_EQ(info[u"types"_s], QJsonArray{u"Text"_s});
}

TEST_F(InfoCommand, TellsProgramsAllTextsOfTheQuestions)
{
    EXPECT_EQ(Run({u"info"_s, u"--json"_s, goldenNestbox}), 0);
    const QJsonArray ofProject = Objects()[0][u"questionList"_s].toArray();
    ASSERT_EQ(ofProject.size(), 6);
    EXPECT_EQ(ofProject[1][u"number"_s], 2);
    EXPECT_EQ(ofProject[1][u"type"_s], u"Pulldown List"_s);
    EXPECT_EQ(ofProject[1][u"columnName"_s], u"SPECIES"_s);
    EXPECT_EQ(ofProject[1][u"title"_s], u"Species"_s);
    EXPECT_EQ(ofProject[1][u"question"_s],
              LoadProject(goldenNestbox)->source.Questions().Rows()[1].Question);
    EXPECT_EQ(ofProject[1][u"items"_s].toArray().size(), 5);
    EXPECT_FALSE(ofProject[0].toObject().contains(u"items"_s)) << "a question without a list";

    qputenv("PATH", PROGRAMS);
    EXPECT_EQ(Run({u"create"_s, u"-o"_s, InFolder(u"a.prc"_s), goldenNestbox}), 0);
    EXPECT_EQ(Run({u"info"_s, u"--json"_s, InFolder(u"a.prc"_s)}), 0);
    EXPECT_EQ(Objects()[0][u"questionList"_s].toArray(), ofProject);
}

TEST_F(InfoCommand, TellsTitlesAsTheFileHasThemAndQuestionsAsAProjectHasThem)
{
    const QString project = InFolder(u"a.vmp"_s), database = InFolder(u"a.prc"_s);
    WriteBytes(project, BytesOf(goldenNestbox).replace("[Species]", R"([x\54\42y])"));
    EXPECT_EQ(Run({u"create"_s, u"-o"_s, database, project}), 0) << Err().toStdString();
    EXPECT_EQ(Run({u"info"_s, u"--json"_s, project, database}), 0);
    const QJsonObject ofProject = Objects()[0], ofDatabase = Objects()[1];
    EXPECT_EQ(ofProject[u"titles"_s][1], uR"(x\54\42y)"_s);
    EXPECT_EQ(ofProject[u"questionList"_s][1][u"title"_s], uR"(x\54\42y)"_s);
    EXPECT_EQ(ofDatabase[u"titles"_s][1], u"x,\"y"_s);
    EXPECT_EQ(ofDatabase[u"questionList"_s][1][u"title"_s].toString(), uR"(x,\42y)"_s);
}

TEST_F(InfoCommand, TellsOfSeveralFilesOneAfterTheOther)
{
    const QString one = DataFile(u"palm/text.prc"_s), none = InFolder(u"none.vmp"_s);
    EXPECT_EQ(Run({u"info"_s, one, none, one}), 3);
    EXPECT_EQ(Out().count(u"file: %1\nformat: database\n"_s.arg(one)), 2);
    EXPECT_TRUE(Err().startsWith(none + u": "_s));
}

TEST_F(InfoCommand, ReadsStandardInput)
{
    EXPECT_EQ(Run({u"info"_s, u"-"_s}, BytesOf(DataFile(u"palm/text.prc"_s))), 0);
    EXPECT_TRUE(Out().startsWith(u"format: database\n"));
    EXPECT_EQ(Run({u"info"_s, u"-"_s}, BytesOf(goldenNestbox)), 0);
    EXPECT_TRUE(Out().startsWith(u"format: project\n"));
}
