#include "exchange/form_sheet.h"
#include "exchange/sheet_names.h"
#include "exchange/workbook.h"
#include "model/question_types.h"
#include "support/files.h"
#include "support/print.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

void Add(Project &project, const QuestionRow &row, const QStringList &items = {})
{
    QuestionRow added = row;
    added.Id = project.source.IssueId();
    added.Order = project.source.QuestionCount() + 1;
    project.source.Questions().Append(added);
    project.source.ReplaceItems(added.Id, items);
}

/// A question of each type, in their order.
Project OfAllTypes()
{
    Project project = {.FormName = u"Visit"_s, .FormVersion = u"2.1"_s};
    for (const QuestionType &type : questionTypes)
        Add(project,
            {.Title = u"T"_s,
             .Question = u"Q?"_s,
             .Type = type.name,
             .ColumnName = QString(type.name).remove(u' ').remove(u'/')},
            type.items ? QStringList{u"One thing"_s, u"Two"_s} : QStringList());
    return project;
}

const SheetTable &Table(const FormSheet &sheet, const QString &name)
{
    for (const SheetTable &table : sheet.tables)
        if (table.name == name)
            return table;
    throw std::logic_error("no such sheet");
}

QStringList Codes(const FormSheet &sheet)
{
    QStringList codes;
    for (const SheetLoss &loss : sheet.losses)
        codes += loss.code;
    return codes;
}

TEST(FormSheet, HasARowForEachType)
{
    const auto sheet = MakeFormSheet(OfAllTypes());
    ASSERT_TRUE(sheet);
    EXPECT_EQ(Table(*sheet, u"survey"_s).headings.join(u','),
              u"type,name,label,hint,appearance,parameters"_s);
    QStringList rows;
    for (const QStringList &row : Table(*sheet, u"survey"_s).rows)
        rows += row.join(u',');
    EXPECT_EQ(rows, (QStringList{
                        u"text,Text,Q?,T,,"_s,
                        u"decimal,Numeric,Q?,T,,"_s,
                        u"select_one PulldownList,PulldownList,Q?,T,minimal,"_s,
                        u"select_one yes_no,YesNo,Q?,T,,"_s,
                        u"image,Signature,Q?,T,signature,max-pixels=1600"_s,
                        u"image,Notes,Q?,T,draw,max-pixels=1600"_s,
                        u"dateTime,DateTime,Q?,T,,"_s,
                        u"decimal,Currency,Q?,T: an amount of money,,"_s,
                        u"barcode,ScannedBarcode,Q?,T,,"_s,
                        u"select_multiple Checkboxes,Checkboxes,Q?,T,,"_s,
                    }));
    rows.clear();
    for (const QStringList &row : Table(*sheet, u"choices"_s).rows)
        rows += row.join(u',');
    EXPECT_EQ(rows, (QStringList{u"PulldownList,One_thing,One thing"_s, u"PulldownList,Two,Two"_s,
                                 u"yes_no,yes,Yes"_s, u"yes_no,no,No"_s,
                                 u"Checkboxes,One_thing,One thing"_s, u"Checkboxes,Two,Two"_s}));
    EXPECT_EQ(Table(*sheet, u"settings"_s).rows,
              (QList<QStringList>{{u"Visit"_s, u"Visit"_s, u"2.1"_s}}));
    EXPECT_EQ(Codes(*sheet), (QStringList{u"choice-name"_s, u"choice-name"_s, u"title-as-hint"_s}));
    EXPECT_EQ(sheet->losses[0].text, u"Items of question 3 have other names in the sheet, "
                                     "such as 'One_thing' for 'One thing'."_s);
    EXPECT_EQ(sheet->losses[0].place.question, 3);
    EXPECT_FALSE(sheet->losses[0].changes) << "their labels are the items";
}

TEST(FormSheet, TellsWhatItDoesNotHave)
{
    Project project = {
        .FormName = u"1st-visit"_s, .Description = u"Of all"_s, .FormPath = u"C:\\a"_s};
    Add(project, {.Question = u"Is ${x} \\nhere?"_s, .Type = u"Text"_s, .ColumnName = u"A B"_s});
    Add(project, {.Question = u"?"_s, .Type = u"Yes/No"_s, .ColumnName = u"a_b"_s});
    Add(project, {.Question = u"?"_s, .Type = u"Pulldown List"_s, .ColumnName = u"yes_no"_s},
        {u"a b"_s, u"a\u00A0 b"_s, u"${c}"_s, u""_s});
    const auto sheet = MakeFormSheet(project);
    ASSERT_TRUE(sheet);
    EXPECT_EQ(Codes(*sheet), (QStringList{u"name-changed"_s, u"text-changed"_s, u"text-changed"_s,
                                          u"choice-name"_s, u"title-as-hint"_s, u"not-in-sheet"_s,
                                          u"not-in-sheet"_s, u"form-id"_s}));
    EXPECT_EQ(sheet->losses[0].text,
              u"The column name of question 1 is 'A_B_2' in the sheet instead of 'A B'."_s);
    EXPECT_TRUE(sheet->losses[0].changes);
    EXPECT_FALSE(sheet->losses[4].changes);
    const auto &survey = Table(*sheet, u"survey"_s).rows;
    EXPECT_EQ(survey[0][2], u"Is $ {x} \nhere?"_s);
    EXPECT_EQ(survey[0][1], u"A_B_2"_s) << "without regard to case";
    EXPECT_EQ(survey[1][1], u"a_b"_s) << "it is valid";
    EXPECT_EQ(survey[2][0], u"select_one yes_no_2"_s);
    QStringList choices;
    for (const QStringList &row : Table(*sheet, u"choices"_s).rows)
        choices += row[1] + u'=' + row[2];
    EXPECT_EQ(choices, (QStringList{u"yes=Yes"_s, u"no=No"_s, u"a_b=a b"_s, u"a_b_2=a\u00A0 b"_s,
                                    u"$_{c}=$ {c}"_s, u"_="_s}));
    EXPECT_EQ(Table(*sheet, u"settings"_s).rows[0][1], u"_1st-visit"_s);
}

TEST(FormSheet, HasTheTextsThatTheHandheldShows)
{
    Project project = {.FormName = u"Visit"_s, .FormVersion = u"1\\0560"_s};
    Add(project,
        {.Title = uR"(x\54y)"_s,
         .Question = uR"(Say "yes"\\no)"_s,
         .Type = u"Pulldown List"_s,
         .ColumnName = u"A\\102"_s},
        {uR"(5\42 pipe)"_s, u"a,b"_s, u""_s, u"As it is"_s});
    Add(project, {.Title = u"Plain \"title\""_s,
                  .Question = uR"(One "line"\nand another)"_s,
                  .Type = u"Text"_s,
                  .ColumnName = u"B"_s});
    const auto sheet = MakeFormSheet(project);
    ASSERT_TRUE(sheet);
    const auto &survey = Table(*sheet, u"survey"_s).rows;
    EXPECT_EQ(survey[0][1], u"AB"_s);
    EXPECT_EQ(survey[0][2], uR"(Say "yes"\no)"_s);
    EXPECT_EQ(survey[0][3], u"x,y"_s);
    EXPECT_EQ(survey[1][2], u"One \"line\"\nand another"_s);
    EXPECT_EQ(survey[1][3], u"Plain \"title\""_s);
    QStringList labels;
    for (const QStringList &row : Table(*sheet, u"choices"_s).rows)
        labels += row[2];
    EXPECT_EQ(labels, (QStringList{u"5\" pipe"_s, u"a"_s, u"b"_s, u""_s, u"As it is"_s}));
    EXPECT_EQ(Table(*sheet, u"settings"_s).rows[0][2], u"1.0"_s);
    QStringList told;
    for (const SheetLoss &loss : sheet->losses)
        if (loss.code == "text-changed"_L1 && !loss.changes)
            told += loss.text;
    const QString instead = u" in the sheet, as on the handheld, instead of "_s;
    EXPECT_EQ(told, (QStringList{uR"(The item of question 1 is '5" pipe')"_s + instead +
                                     uR"('5\42 pipe'.)"_s,
                                 u"The item of question 1 is 'a', 'b'"_s + instead + u"'a,b'."_s,
                                 uR"(The question text of question 1 is 'Say "yes"\no')"_s +
                                     instead + uR"('Say "yes"\\no'.)"_s,
                                 u"The title of question 1 is 'x,y'"_s + instead + uR"('x\54y'.)"_s,
                                 u"The form version is '1.0'"_s + instead + uR"('1\0560'.)"_s}));
}

TEST(FormSheet, HasNoReferenceInAnyCell)
{
    Project project = {.FormName = u"a${b}"_s};
    Add(project, {.Title = u"${"_s, .Question = u"${"_s, .Type = u"Text"_s, .ColumnName = u"${"_s});
    Add(project, {.Question = u"?"_s, .Type = u"Checkboxes"_s, .ColumnName = u"x"_s},
        {u"${"_s, u"$ {"_s, u"$_{"_s});
    const auto sheet = MakeFormSheet(project);
    ASSERT_TRUE(sheet);
    for (const SheetTable &table : sheet->tables)
        for (const QStringList &row : table.rows)
            EXPECT_FALSE(row.join(u'\n').contains("${"_L1)) << row.join(u',').toStdString();
    EXPECT_EQ(Table(*sheet, u"settings"_s).rows[0][0], u"a$ {b}"_s);
    EXPECT_EQ(sheet->losses.last().code, "text-changed"_L1);
    EXPECT_EQ(sheet->losses.last().place.field, "form name"_L1);
    EXPECT_TRUE(sheet->losses.last().changes);
}

TEST(FormSheet, IsRefusedWhereAFormToolWouldRefuseIt)
{
    Project unknown, noItems;
    Add(unknown, {.Type = u"Telepathy"_s, .ColumnName = u"a"_s});
    EXPECT_EQ(MakeFormSheet(unknown).error().text,
              u"question 1 is of the unknown type 'Telepathy'"_s);
    Add(noItems, {.Type = u"Text"_s, .ColumnName = u"a"_s});
    Add(noItems, {.Type = u"Checkboxes"_s, .ColumnName = u"b"_s});
    EXPECT_EQ(MakeFormSheet(noItems).error().text, u"question 2 has no items"_s);
    noItems.source.ReplaceItems(noItems.source.Questions().Rows().last().Id, {u""_s});
    EXPECT_EQ(MakeFormSheet(noItems).error().text, u"question 2 has no items"_s) << "none arrives";
}

TEST(SheetNames, AreValidAndUniqueWhateverTheyAreMadeOf)
{
    const QRegularExpression valid(u"\\A[A-Za-z_][A-Za-z0-9._-]*\\z"_s);
    std::mt19937 random(7);
    QStringList texts;
    for (int i = 0; i < 5'000; ++i) {
        QString text;
        for (auto length = random() % 4; length > 0; --length)
            text += QChar(char16_t(random() % 300));
        texts += text;
    }
    const QStringList names = SheetNames(texts);
    ASSERT_EQ(names.size(), texts.size());
    QSet<QString> taken, kept;
    for (qsizetype i = 0; i < names.size(); ++i) {
        EXPECT_TRUE(valid.match(names[i]).hasMatch()) << names[i].toStdString();
        EXPECT_FALSE(taken.contains(names[i].toLower())) << names[i].toStdString();
        taken += names[i].toLower();
        if (valid.match(texts[i]).hasMatch() && !kept.contains(texts[i].toLower())) {
            EXPECT_EQ(names[i], texts[i]);
            kept += texts[i].toLower();
        }
    }
    EXPECT_FALSE(kept.isEmpty());
}

TEST(SheetNames, LeaveEachThatIsValidToItsOwner)
{
    EXPECT_EQ(SheetNames({u"age"_s, u"AGE"_s, u"AGE_2"_s}),
              (QStringList{u"age"_s, u"AGE_3"_s, u"AGE_2"_s}));
    EXPECT_EQ(SheetNames({u"A B"_s, u"A_B"_s}), (QStringList{u"A_B_2"_s, u"A_B"_s}));
    EXPECT_EQ(SheetNames({u"yes_no"_s, u"Yes_No_2"_s}, u"yes_no"_s),
              (QStringList{u"yes_no_3"_s, u"Yes_No_2"_s}));
    EXPECT_EQ(ChoiceNames({u"one oak"_s, u"ash"_s, u"Ash"_s, u"One_oak"_s, u"Ash_2"_s}),
              (QStringList{u"one_oak_2"_s, u"ash"_s, u"Ash_3"_s, u"One_oak"_s, u"Ash_2"_s}));
}

TEST(Workbook, HasTheSameBytesEveryTime)
{
    QTemporaryDir folder;
    const auto sheet = MakeFormSheet(OfAllTypes());
    ASSERT_TRUE(sheet);
    ASSERT_TRUE(WriteWorkbook(sheet->tables, folder.filePath(u"a.xlsx"_s)));
    ASSERT_TRUE(WriteWorkbook(sheet->tables, folder.filePath(u"b.xlsx"_s)));
    const QByteArray bytes = BytesOf(folder.filePath(u"a.xlsx"_s));
    EXPECT_TRUE(bytes.startsWith("PK"));
    EXPECT_EQ(bytes, BytesOf(folder.filePath(u"b.xlsx"_s)));
    EXPECT_EQ(NamesIn(folder.path()), (QStringList{u"a.xlsx"_s, u"b.xlsx"_s}));
}

TEST(Workbook, RefusesWhatNoCellCanHold)
{
    QTemporaryDir folder;
    const SheetTable fits = {u"a"_s, {u"b"_s}, {{QString(32767, u'x')}}};
    const SheetTable tooLong = {u"a"_s, {u"b"_s}, {{QString(32768, u'x')}}};
    EXPECT_TRUE(WriteWorkbook({fits}, folder.filePath(u"a.xlsx"_s)));
    EXPECT_EQ(WriteWorkbook({tooLong}, folder.filePath(u"b.xlsx"_s)).error().text,
              u"a text is longer than the 32767 characters of a cell"_s);
    EXPECT_FALSE(WriteWorkbook({fits}, folder.filePath(u"no/such/c.xlsx"_s)));
}

} // namespace
