#include "vellumo_run.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString shelfAudit = DataFile(u"../../examples/ShelfAudit.vmp"_s);

const QByteArray mark = "\xEF\xBB\xBF";

class ColumnsCommand : public VellumoRun
{
protected:
    QByteArray Bytes() const { return QByteArray::fromStdString(out.str()); }
};

} // namespace

TEST_F(ColumnsCommand, TellsAPersonInATable)
{
    EXPECT_EQ(Run({u"columns"_s, shelfAudit}), 0);
    const QStringList lines = Out().split(u'\n');
    EXPECT_EQ(
        lines[0],
        u"Number  Column Name  Type             Value                 Title       Question"_s);
    EXPECT_TRUE(lines[1].startsWith(u"1       SHOP         Pulldown List    one of the items"_s));
    EXPECT_EQ(lines[2].left(8), QString(8, u' ')) << "the items of the shop";
    EXPECT_TRUE(lines[2].contains(" | "_L1));
    EXPECT_TRUE(lines[3].startsWith(u"2       EAN          Scanned Barcode  text "_s));
    EXPECT_TRUE(Out().contains("How many packs stand\\nin the front row?"_L1));
    EXPECT_EQ(Err(), u""_s);
}

TEST_F(ColumnsCommand, WritesCsvInUtf8)
{
    EXPECT_EQ(Run({u"columns"_s, u"--csv"_s, shelfAudit}), 0);
    EXPECT_TRUE(
        Bytes().startsWith(mark + "Number,Column Name,Type,Value,Title,Question,Items\r\n"));
    EXPECT_TRUE(Out().contains(
        u"\r\n3,PRICE,Currency,amount of money,Price,Price on the label (in \u20ac),\r\n"_s))
        << out.str();
}

TEST_F(ColumnsCommand, WritesMarkdown)
{
    EXPECT_EQ(Run({u"columns"_s, shelfAudit, u"--markdown"_s}), 0);
    EXPECT_TRUE(Out().startsWith("- form name: ShelfAudit\n- form version: "_L1)) << out.str();
    EXPECT_TRUE(Out().contains("\n\n| Number | Column Name |"_L1)) << out.str();
    EXPECT_TRUE(Out().contains("| How many packs stand\\\\nin the front row? |"_L1)) << out.str();
}

TEST_F(ColumnsCommand, TellsProgramsInJson)
{
    EXPECT_EQ(Run({u"columns"_s, u"--json"_s, shelfAudit}), 0);
    ASSERT_GT(Objects().size(), 4);
    const QJsonObject first = Objects()[0];
    EXPECT_EQ(first[u"kind"_s], u"column"_s);
    EXPECT_EQ(first[u"code"_s], u"column"_s);
    EXPECT_EQ(first[u"file"_s], shelfAudit);
    EXPECT_EQ(first[u"question"_s], 1);
    EXPECT_EQ(first[u"columnName"_s], u"SHOP"_s);
    EXPECT_EQ(first[u"type"_s], u"Pulldown List"_s);
    EXPECT_EQ(first[u"value"_s], u"one of the items"_s);
    EXPECT_EQ(first[u"title"_s], u"Shop"_s);
    EXPECT_EQ(first[u"text"_s], u"Which shop are you in?"_s);
    EXPECT_GT(first[u"items"_s].toArray().size(), 1);
    EXPECT_EQ(Objects().last()[u"code"_s], u"columns"_s);
}

TEST_F(ColumnsCommand, NamesEachOfSeveralProjects)
{
    EXPECT_EQ(Run({u"columns"_s, goldenNestbox, shelfAudit}), 0);
    EXPECT_TRUE(Out().startsWith("file: "_L1 + goldenNestbox + "\nNumber"_L1)) << out.str();
    EXPECT_EQ(Out().count("\nfile: "_L1), 1);
    EXPECT_EQ(Run({u"columns"_s, u"--csv"_s, goldenNestbox, shelfAudit}), 0);
    EXPECT_TRUE(Bytes().startsWith(mark + "Project,Number,")) << out.str();
    EXPECT_EQ(Out().count("Project,"_L1), 1) << "one table with one heading";
    EXPECT_EQ(Bytes().count(mark), 1);
    EXPECT_TRUE(Out().contains("\r\n"_L1 + shelfAudit + ",1,SHOP,"_L1)) << out.str();
    const QString odd = InFolder(u"a_b|c.vmp"_s);
    ASSERT_TRUE(QFile::copy(goldenNestbox, odd));
    EXPECT_EQ(Run({u"columns"_s, u"--markdown"_s, goldenNestbox, odd}), 0);
    EXPECT_TRUE(Out().contains(" |\n\n## "_L1)) << out.str();
    EXPECT_TRUE(Out().contains("/a\\_b\\|c.vmp\n\n- form name: "_L1)) << out.str();
}

TEST_F(ColumnsCommand, TriesEachProject)
{
    const QString missing = InFolder(u"missing.vmp"_s);
    EXPECT_EQ(Run({u"columns"_s, u"--csv"_s, missing, goldenNestbox}), 3);
    EXPECT_TRUE(Bytes().startsWith(mark + "Project,Number,")) << out.str();
    EXPECT_TRUE(Err().startsWith(missing + u':')) << err.str();
}

TEST_F(ColumnsCommand, ReadsStandardInput)
{
    EXPECT_EQ(Run({u"columns"_s, u"-"_s, u"--csv"_s}, BytesOf(goldenNestbox)), 0);
    const QString told = Out();
    EXPECT_EQ(Run({u"columns"_s, u"--csv"_s, goldenNestbox}), 0);
    EXPECT_EQ(Out(), told);
}

TEST_F(ColumnsCommand, LetsNoControlCharacterReachATerminal)
{
    const QString path = InFolder(u"bell.vmp"_s);
    ASSERT_TRUE(WriteBytes(path, BytesOf(shelfAudit).replace("[Shop]", "[S\x9dhop]")));
    EXPECT_EQ(Run({u"columns"_s, path}), 0);
    EXPECT_TRUE(Out().contains("S\\x9dhop"_L1)) << out.str();
}

TEST_F(ColumnsCommand, RefusesTwoFormatsAtOnce)
{
    EXPECT_EQ(Run({u"columns"_s, u"--csv"_s, u"--markdown"_s, goldenNestbox}), 2);
    EXPECT_EQ(Err(), u"vellumo: Only one of --csv, --markdown and --json can be had.\n"_s);
    EXPECT_EQ(Out(), u""_s);
    EXPECT_EQ(Run({u"columns"_s, u"--csv"_s, u"--json"_s, goldenNestbox}), 2);
    EXPECT_EQ(Run({u"review"_s, u"--csv"_s, goldenNestbox}), 2) << "it has no table";
}
