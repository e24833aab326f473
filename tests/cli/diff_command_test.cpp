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

    /// The path of a form with pulldown lists that have these Ids, and items of list 1.
    QString Form(const QString &name, const QString &version, const QList<int> &lists,
                 const QStringList &items)
    {
        QString text = u"<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n<root>\n"
                       "<Company>Brindlecot Data Collect</Company>\n<FormName>Form</FormName>\n"
                       "<FormVersion>%1</FormVersion>\n<Description/>\n<FormPath/>\n"
                       "<MaxId>3</MaxId>\n<rcMain>"_s.arg(version);
        for (int i = 0; i < lists.size(); ++i)
            text += u"<record><Order>%1</Order><Type>Pulldown List</Type><Title>T%2</Title>"
                    "<ColumnName>C%2</ColumnName><Question>Q%2</Question><Id>%2</Id></record>"_s
                        .arg(i + 1)
                        .arg(lists[i]);
        text += "</rcMain>\n<rcChilds>"_L1;
        for (const QString &item : items)
            text += u"<record><Id>1</Id><Item>%1</Item></record>"_s.arg(item);
        text += "</rcChilds>\n<TitleList/>\n</root>\n"_L1;
        EXPECT_TRUE(WriteBytes(InFolder(name), text.toLatin1()));
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

TEST_F(DiffCommand, HasACodeForEachKindOfDifference)
{
    const QString before = Form(u"before.vmp"_s, u"1.0"_s, {1, 2}, {u"a"_s, u"b"_s});
    const struct {
        QString version;
        QList<int> lists;
        QStringList items;
        QString told; ///< code, field, column name, question, places of the item
    } rows[] = {
        {u"1.1"_s, {1, 2}, {u"a"_s, u"b"_s}, u"form-changed form version  0 0 0"_s},
        {u"1.0"_s, {1}, {u"a"_s, u"b"_s}, u"question-removed  C2 2 0 0"_s},
        {u"1.0"_s, {1, 2, 3}, {u"a"_s, u"b"_s}, u"question-added  C3 3 0 0"_s},
        {u"1.0"_s, {2, 1}, {u"a"_s, u"b"_s}, u"question-moved  C2 1 0 0"_s},
        {u"1.0"_s, {1, 2}, {u"a"_s}, u"item-removed item C1 1 2 0"_s},
        {u"1.0"_s, {1, 2}, {u"a"_s, u"b"_s, u"c"_s}, u"item-added item C1 1 0 3"_s},
        {u"1.0"_s, {1, 2}, {u"b"_s, u"a"_s}, u"item-moved item C1 1 2 1"_s},
    };
    for (const auto &row : rows) {
        const QString after = Form(u"after.vmp"_s, row.version, row.lists, row.items);
        EXPECT_EQ(Run({u"diff"_s, u"--json"_s, before, after}), 1);
        ASSERT_EQ(Objects().size(), 2) << out.str();
        const QJsonObject finding = Objects()[0];
        EXPECT_EQ(u"%1 %2 %3 %4 %5 %6"_s
                      .arg(finding[u"code"_s].toString(), finding[u"field"_s].toString(),
                           finding[u"columnName"_s].toString())
                      .arg(finding[u"question"_s].toInt())
                      .arg(finding[u"itemBefore"_s].toInt())
                      .arg(finding[u"itemAfter"_s].toInt()),
                  row.told)
            << out.str();
    }
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
