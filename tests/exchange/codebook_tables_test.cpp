#include "exchange/codebook_tables.h"

#include "exchange/list_cell.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const std::vector<CodebookRow> rows = {
    {1, u"NAME"_s, u"Text"_s, "text"_L1, u"Your name"_s, u"Who are you?"_s, {}},
    {2,
     u"BIRDS"_s,
     u"Checkboxes"_s,
     "several of the items"_L1,
     u"Birds"_s,
     u"Which birds?"_s,
     {u"Wren"_s, u"Robin"_s}},
};

CodebookRow Asks(const QString &question, const QStringList &items = {})
{
    return {1, u"Q"_s, u"Text"_s, "text"_L1, u"T"_s, question, items};
}

} // namespace

TEST(TerminalTable, PutsColumnsBelowEachOther)
{
    EXPECT_EQ(
        TerminalTable(rows),
        (QStringList{
            u"Number  Column Name  Type        Value                 Title      Question"_s,
            u"1       NAME         Text        text                  Your name  Who are you?"_s,
            u"2       BIRDS        Checkboxes  several of the items  Birds      Which birds?"_s,
            u"        Wren | Robin"_s}));
}

TEST(TerminalTable, LetsALongCellMoveItsOwnRowAlone)
{
    std::vector<CodebookRow> wide = rows;
    wide[1].columnName = QString(200, u'B');
    const QStringList lines = TerminalTable(wide);
    EXPECT_EQ(lines[1].indexOf("Text"_L1), 8 + 24 + 2);
    EXPECT_EQ(lines[2].indexOf("Checkboxes"_L1), 8 + 200 + 2);
}

TEST(TerminalTable, OfNothingIsAHeading)
{
    EXPECT_EQ(TerminalTable({}),
              QStringList(u"Number  Column Name  Type  Value  Title  Question"_s));
}

TEST(MarkdownForm, HasTheTextsOfTheForm)
{
    const Project project = {.FormName = u"Nest_box"_s,
                             .FormVersion = u"1.0"_s,
                             .Description = u"Of *all* boxes\nof the park"_s,
                             .FormPath = u"C:\\Nests"_s};
    EXPECT_EQ(MarkdownForm(project), u"- form name: Nest\\_box\n"
                                     "- form version: 1.0\n"
                                     "- description: Of \\*all\\* boxes<br>of the park\n"
                                     "- data folder: C:\\\\Nests\n\n"_s);
}

TEST(MarkdownTable, HasARowForEachQuestion)
{
    EXPECT_EQ(MarkdownTable(rows),
              u"| Number | Column Name | Type | Value | Title | Question | Items |\n"
              "| --- | --- | --- | --- | --- | --- | --- |\n"
              "| 1 | NAME | Text | text | Your name | Who are you? |  |\n"
              "| 2 | BIRDS | Checkboxes | several of the items | Birds | Which birds? | "
              "Wren<br>Robin |\n"_s);
}

TEST(MarkdownTable, TakesTextsForTexts)
{
    const struct {
        QString text, written;
    } texts[] = {
        {u"a|b"_s, u"a\\|b"_s},
        {u"a\\|b"_s, u"a\\\\\\|b"_s},
        {u"<b>*x* _y_ `z` ~~w~~"_s, u"\\<b\\>\\*x\\* \\_y\\_ \\`z\\` \\~\\~w\\~\\~"_s},
        {u"[a](b) ![c] {d} &amp; #1 $2"_s, u"\\[a\\](b) !\\[c\\] \\{d\\} \\&amp; \\#1 \\$2"_s},
        {u"one\ntwo\tthree\r\u0081"_s, u"one<br>two three  "_s},
        {u"caf\u00e9"_s, u"caf\u00e9"_s},
    };
    for (const auto &row : texts) {
        const QString table = MarkdownTable({Asks(row.text, {row.text})});
        EXPECT_TRUE(table.endsWith(u"| T | %1 | %1 |\n"_s.arg(row.written))) << table.toStdString();
        EXPECT_EQ(table.count(u'\n'), 3);
    }
}

TEST(CsvRows, AreWrittenByRfc4180)
{
    EXPECT_EQ(CsvHeading(false), u"\uFEFFNumber,Column Name,Type,Value,Title,Question,Items\r\n"_s);
    EXPECT_EQ(CsvRows(rows), u"1,NAME,Text,text,Your name,Who are you?,\r\n"
                             "2,BIRDS,Checkboxes,several of the items,Birds,Which birds?,"
                             "\"Wren\nRobin\"\r\n"_s);
    EXPECT_EQ(CsvRows({Asks(u"Say \"a, b\""_s), Asks(u"two\nlines"_s), Asks(u"a\rb"_s)}),
              u"1,Q,Text,text,T,\"Say \"\"a, b\"\"\",\r\n"
              "1,Q,Text,text,T,\"two\nlines\",\r\n"
              "1,Q,Text,text,T,\"a\rb\",\r\n"_s);
}

TEST(CsvRows, KeepItemsApartWhateverIsInThem)
{
    const QStringList items = {u"a|b"_s, u"one\\two"_s, u"x\ny"_s, u""_s, u" z"_s};
    const QString written = CsvRows({Asks(u"x"_s, items)});
    EXPECT_EQ(written, u"1,Q,Text,text,T,x,\"a|b\none\\\\two\nx\\ny\n\\-\n\\sz\"\r\n"_s);
    const QString cell = written.mid(written.indexOf(u'"') + 1).chopped(3);
    EXPECT_EQ(*ReadList(cell), items) << "as those of an exported project";
}

TEST(CsvRows, NameTheirProjectWhereAsked)
{
    EXPECT_EQ(CsvHeading(true),
              u"\uFEFFProject,Number,Column Name,Type,Value,Title,Question,Items\r\n"_s);
    EXPECT_EQ(CsvRows({Asks(u"x"_s)}, u"a,b.vmp"_s), u"\"a,b.vmp\",1,Q,Text,text,T,x,\r\n"_s);
}
