#include "vellumo_run.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {
using InfoCommand = VellumoRun;
}

TEST_F(InfoCommand, TellsWhatIsInAProject)
{
    EXPECT_EQ(Run({u"info"_s, DataFile(u"projects/Nestbox.vmp"_s)}), 0);
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

TEST_F(InfoCommand, ReadsStandardInput)
{
    EXPECT_EQ(Run({u"info"_s, u"-"_s}, BytesOf(DataFile(u"palm/text.prc"_s))), 0);
    EXPECT_TRUE(Out().startsWith(u"format: database\n"));
    EXPECT_EQ(Run({u"info"_s, u"-"_s}, BytesOf(DataFile(u"projects/Nestbox.vmp"_s))), 0);
    EXPECT_TRUE(Out().startsWith(u"format: project\n"));
}
