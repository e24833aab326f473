#include "vellumo_run.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// A database of SiteVisit.vmp to be damaged.
class VerifyCommand : public VellumoRun
{
protected:
    VerifyCommand()
    {
        qputenv("PATH", PROGRAMS);
        EXPECT_EQ(Run({u"create"_s, goldenSiteVisit, u"-o"_s, m_folder.path()}), 0)
            << Err().toStdString();
        database = InFolder(u"SiteVisit.prc"_s);
        bytes = BytesOf(database);
    }

    int Verify(const QByteArray &damaged)
    {
        WriteBytes(database, damaged);
        return Run({u"verify"_s, database, goldenSiteVisit});
    }

    QString database;
    QByteArray bytes;
};

} // namespace

TEST_F(VerifyCommand, SaysNothingOfADatabaseThatIsRight)
{
    EXPECT_EQ(Run({u"verify"_s, database}), 0);
    EXPECT_EQ(Run({u"verify"_s, database, goldenSiteVisit}), 0);
    EXPECT_EQ(Out() + Err(), u""_s);
    EXPECT_EQ(Run({u"verify"_s, u"-"_s, goldenSiteVisit}, bytes), 0);
    EXPECT_EQ(Run({u"verify"_s, database, u"-"_s}, BytesOf(goldenSiteVisit)), 0);
}

TEST_F(VerifyCommand, FindsADatabaseOfAnotherProject)
{
    EXPECT_EQ(Run({u"verify"_s, database, goldenNestbox}), 1);
    EXPECT_TRUE(Out().contains(u"SiteVisit")) << Out().toStdString();
    EXPECT_EQ(Err(), u""_s);
}

TEST_F(VerifyCommand, FindsAChangedText)
{
    EXPECT_EQ(Verify(QByteArray(bytes).replace("Inspector", "Inspectar")), 1);
    EXPECT_TRUE(Out().contains(u"question 1")) << Out().toStdString();
    EXPECT_EQ(Run({u"verify"_s, database}), 0) << "by itself it is sound";
}

TEST_F(VerifyCommand, FindsWhatIsWrongWithoutAProject)
{
    const qsizetype count = bytes.indexOf("tFRM");
    ASSERT_GT(count, 0);
    EXPECT_EQ(Verify(bytes.chopped(2)), 1);
    EXPECT_EQ(Run({u"verify"_s, database}), 1);
    EXPECT_EQ(Verify(QByteArray(bytes).replace(60, 4, "appl")), 1);
    EXPECT_EQ(Run({u"verify"_s, database}), 1);
}

TEST_F(VerifyCommand, RefusesWhatIsNoDatabase)
{
    EXPECT_EQ(Run({u"verify"_s, goldenSiteVisit}), 3);
    EXPECT_TRUE(Err().startsWith(goldenSiteVisit + u": "_s));
    EXPECT_EQ(Run({u"verify"_s, database, database}), 3) << "and what is no project";
    EXPECT_EQ(Run({u"verify"_s, database, InFolder(u"none.vmp"_s)}), 3);
}

TEST_F(VerifyCommand, TellsProgramsInJson)
{
    WriteBytes(database, QByteArray(bytes).replace("Inspector", "Inspectar"));
    EXPECT_EQ(Run({u"verify"_s, u"--json"_s, database, goldenSiteVisit}), 1);
    ASSERT_EQ(Objects().size(), 2);
    EXPECT_EQ(Objects()[0][u"kind"_s], u"finding"_s);
    EXPECT_EQ(Objects()[0][u"question"_s], 1);
    EXPECT_NE(Objects()[0][u"code"_s].toString(), u""_s);
    EXPECT_EQ(Objects()[1][u"code"_s], u"not-verified"_s);
}

TEST_F(VerifyCommand, RemarksOnABackupWithoutAFinding)
{
    bytes.replace(44, 4, QByteArray("\xB4\0\0\1", 4));
    bytes[33] = static_cast<char>(bytes[33] | 0x08);
    const QString remarks = u"remark: The database was backed up at 1999-09-11 12:48:01.\n"
                            "remark: The database is marked to be backed up.\n"_s;
    EXPECT_EQ(Verify(bytes), 0);
    EXPECT_EQ(Out(), remarks);
    EXPECT_EQ(Run({u"verify"_s, database}), 0);
    EXPECT_EQ(Out(), remarks);
    EXPECT_EQ(Run({u"info"_s, database}), 0);
    EXPECT_TRUE(Out().endsWith(remarks)) << Out().toStdString();

    EXPECT_EQ(Run({u"verify"_s, u"--json"_s, database}), 0);
    ASSERT_EQ(Objects().size(), 3);
    EXPECT_EQ(Objects()[0][u"kind"_s], u"remark"_s);
    EXPECT_EQ(Objects()[0][u"code"_s], u"backup-time"_s);
    EXPECT_EQ(Objects()[0][u"message"_s], u"The database was backed up at 1999-09-11 12:48:01."_s);
    EXPECT_EQ(Objects()[1][u"code"_s], u"backup-bit"_s);
    EXPECT_EQ(Objects()[2][u"code"_s], u"verified"_s);
    EXPECT_EQ(Run({u"info"_s, u"--json"_s, database}), 0);
    ASSERT_EQ(Objects().size(), 3);
    EXPECT_EQ(Objects()[1][u"kind"_s], u"remark"_s);
    EXPECT_EQ(Objects()[2][u"code"_s], u"info"_s);
}
