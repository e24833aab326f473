#include "vellumo_run.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString nullDevice = u"/dev/null"_s;

class DiffCommand : public VellumoRun
{
protected:
    /// The path of SiteVisit with one text in the place of another, which it must have.
    QString Changed(const QByteArray &from, const QByteArray &to,
                    const QString &name = u"changed.vmp"_s)
    {
        const QByteArray bytes = BytesOf(siteVisit);
        EXPECT_TRUE(bytes.contains(from));
        EXPECT_TRUE(WriteBytes(InFolder(name), QByteArray(bytes).replace(from, to)));
        return InFolder(name);
    }

    /// The words with which git calls an external diff.
    static QStringList ForGit(const QString &path, const QString &before, const QString &after)
    {
        return {u"diff"_s,   u"--git"_s,  u"--"_s, path,        before,
                u"1f2e3d"_s, u"100644"_s, after,   u"4c5b6a"_s, u"100644"_s};
    }
};

} // namespace

TEST_F(DiffCommand, SaysNothingWhereThereIsNoDifference)
{
    EXPECT_EQ(Run({u"diff"_s, siteVisit, siteVisit}), 0);
    EXPECT_EQ(Out() + Err(), u""_s);
}

TEST_F(DiffCommand, TellsWhatDiffers)
{
    const QString changed = Changed("[1.0]", "[1.1]");
    EXPECT_EQ(Run({u"diff"_s, siteVisit, changed}), 1);
    EXPECT_EQ(Out(), u"--- %1\n+++ %2\n@@ form version @@\n-1.0\n+1.1\n"_s.arg(siteVisit, changed));
    EXPECT_EQ(Run({u"diff"_s, changed, Changed("[Oregon]", "[Ore%gon]", u"item.vmp"_s)}), 1);
    EXPECT_TRUE(Out().endsWith(u"\n-1.1\n+1.0\n@@ question 3, STATE: items @@\n"
                               "-1. Oregon\n+1. Ore%gon\n"_s))
        << out.str();
}

TEST_F(DiffCommand, TellsTheSameEachTime)
{
    EXPECT_EQ(Run({u"diff"_s, siteVisit, goldenNestbox}), 1);
    const QString told = Out();
    EXPECT_EQ(Run({u"diff"_s, siteVisit, goldenNestbox}), 1);
    EXPECT_EQ(Out(), told);
}

TEST_F(DiffCommand, TellsProgramsInJson)
{
    const QString changed = Changed("[Crew size]", "[Crew]");
    EXPECT_EQ(Run({u"diff"_s, u"--json"_s, siteVisit, changed}), 1);
    ASSERT_EQ(Objects().size(), 2);
    const QJsonObject finding = Objects()[0];
    EXPECT_EQ(finding[u"kind"_s], u"finding"_s);
    EXPECT_EQ(finding[u"code"_s], u"question-changed"_s);
    EXPECT_EQ(finding[u"message"_s], u"question 5, CREW: title"_s);
    EXPECT_EQ(finding[u"question"_s], 5);
    EXPECT_EQ(finding[u"columnName"_s], u"CREW"_s);
    EXPECT_EQ(finding[u"field"_s], u"title"_s);
    EXPECT_EQ(finding[u"before"_s], u"Crew size"_s);
    EXPECT_EQ(finding[u"after"_s], u"Crew"_s);
    EXPECT_EQ(Objects()[1][u"code"_s], u"different"_s);
    EXPECT_EQ(Run({u"diff"_s, u"--json"_s, siteVisit, siteVisit}), 0);
    ASSERT_EQ(Objects().size(), 1);
    EXPECT_EQ(Objects()[0][u"code"_s], u"equal"_s);
}

TEST_F(DiffCommand, TakesTheNullDeviceForAProjectWithNothingInIt)
{
    EXPECT_EQ(Run({u"diff"_s, nullDevice, siteVisit}), 1);
    EXPECT_EQ(Out().count(": added @@"_L1), 10) << out.str();
    EXPECT_TRUE(Out().startsWith("--- /dev/null\n"_L1));
    EXPECT_EQ(Run({u"diff"_s, siteVisit, nullDevice}), 1);
    EXPECT_EQ(Out().count(": removed @@"_L1), 10) << out.str();
    EXPECT_EQ(Run({u"diff"_s, nullDevice, nullDevice}), 0);
}

TEST_F(DiffCommand, ReadsStandardInput)
{
    EXPECT_EQ(Run({u"diff"_s, u"-"_s, siteVisit}, BytesOf(siteVisit)), 0);
    const QString changed = Changed("[1.0]", "[1.1]");
    EXPECT_EQ(Run({u"diff"_s, changed, u"-"_s}, BytesOf(siteVisit)), 1);
    EXPECT_TRUE(Out().contains("\n+++ standard input\n"_L1)) << out.str();
    EXPECT_EQ(Run({u"diff"_s, u"-"_s, u"-"_s}), 2);
}

TEST_F(DiffCommand, EndsWithTwoWhateverIsWrong)
{
    for (const QStringList &words : {QStringList{u"diff"_s, siteVisit},
                                     QStringList{u"diff"_s, siteVisit, siteVisit, siteVisit}}) {
        EXPECT_EQ(Run(words), 2);
        EXPECT_EQ(Err(), u"vellumo: Differences are those of two projects: please name both.\n"_s);
    }
    EXPECT_EQ(Run({u"diff"_s}), 2);
    EXPECT_TRUE(Err().startsWith("vellumo: Which projects?"_L1)) << err.str();
    const QString missing = InFolder(u"missing.vmp"_s);
    for (const QStringList &words :
         {QStringList{u"diff"_s, missing, siteVisit}, QStringList{u"diff"_s, siteVisit, missing}}) {
        EXPECT_EQ(Run(words), 2);
        EXPECT_EQ(Err(), missing + u": No such file or directory\n"_s);
        EXPECT_EQ(Out(), u""_s);
    }
    EXPECT_EQ(Run({u"diff"_s, u"-"_s, siteVisit}, "no project"), 2);
    EXPECT_TRUE(Err().startsWith("standard input:1: "_L1)) << err.str();
    EXPECT_EQ(Run({u"diff"_s, u"--json"_s, missing, siteVisit}), 2);
    ASSERT_EQ(Objects().size(), 2);
    EXPECT_EQ(Objects()[0][u"code"_s], u"unreadable"_s);
    EXPECT_EQ(Objects()[1][u"exit"_s], 2);
}

TEST_F(DiffCommand, TakesTheNamesThatGitGives)
{
    const QString changed = Changed("[1.0]", "[1.1]");
    EXPECT_EQ(Run(ForGit(u"-forms/a.vmp"_s, siteVisit, changed)), 0)
        << "git takes anything else for a failure";
    EXPECT_EQ(Out(), u"--- a/-forms/a.vmp\n+++ b/-forms/a.vmp\n@@ form version @@\n-1.0\n+1.1\n"_s);
    EXPECT_EQ(Run(ForGit(u"a.vmp"_s, siteVisit, changed) +
                  QStringList{u"b.vmp"_s, u"similarity index 98%\nrename from a.vmp\n"_s}),
              0);
    EXPECT_TRUE(Out().startsWith("--- a/a.vmp\n+++ b/b.vmp\n@@ form"_L1)) << out.str();
    EXPECT_EQ(Run(ForGit(u"a.vmp"_s, nullDevice, changed)), 0);
    EXPECT_TRUE(Out().startsWith("--- /dev/null\n+++ b/a.vmp\n@@ form name @@\n+Site"_L1))
        << out.str();
    EXPECT_EQ(Run(ForGit(u"a.vmp"_s, siteVisit, siteVisit)), 0);
    EXPECT_EQ(Out() + Err(), u""_s);
}

TEST_F(DiffCommand, LetsGitGoOnWhateverIsWrongWithAProject)
{
    const QString missing = InFolder(u"missing.vmp"_s);
    EXPECT_EQ(Run(ForGit(u"a.vmp"_s, siteVisit, missing)), 0);
    EXPECT_EQ(Out(),
              u"--- a/a.vmp\n+++ b/a.vmp\n@@ %1: No such file or directory @@\n"_s.arg(missing));
    EXPECT_EQ(Run({u"diff"_s, u"--git"_s, u"--"_s, u"a.vmp"_s}), 0);
    EXPECT_EQ(Out(), u"* Unmerged path a.vmp\n"_s);
    EXPECT_EQ(Run({u"diff"_s, u"--git"_s, siteVisit, siteVisit}), 2);
    EXPECT_EQ(Err(), u"vellumo: Git gives an external diff one name, seven or nine.\n"_s);
    EXPECT_EQ(Run(ForGit(u"a.vmp"_s, siteVisit, siteVisit).mid(0, 2) +
                  QStringList{u"--json"_s, u"a.vmp"_s}),
              2);
}

TEST_F(DiffCommand, LetsNoControlCharacterReachATerminal)
{
    const QString changed = Changed("[Crew size]", "[Crew\x9d\nsize]");
    EXPECT_EQ(Run({u"diff"_s, siteVisit, changed}), 1);
    EXPECT_TRUE(Out().endsWith("-Crew size\n+Crew\\x9d\\x0asize\n"_L1)) << out.str();
}
