#include "editing/question_sources.h"
#include "exchange/sheet.h"
#include "exchange/sheet_import.h"
#include "model/limits.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QByteArray heading = "Id,Order,Title,Question,Type,Column Name,Items\n";

/// The refusals as "row column: reason".
QStringList Told(const SheetImport &import)
{
    QStringList told;
    for (const auto &[row, column, reason, question] : import.refusals)
        told += u"%1 %2: "_s.arg(QString::number(row), column) + reason;
    return told;
}

QStringList Refusals(const QByteArray &bytes)
{
    const Result<Sheet> sheet = ReadSheet(bytes);
    return sheet ? Told(ImportSheet(*sheet)) : QStringList{Describe(sheet.error())};
}

struct Refused {
    QByteArray row;
    QStringList refusals;
};

} // namespace

TEST(RefusedSheet, IsNoTable)
{
    const QString noHeading =
        u"There is no heading: a row with 'Question', 'Type' and 'Column Name'."_s;
    const Refused sheets[] = {
        {"", {noHeading}},
        {"a,b\nc,d\n", {noHeading}},
        {"Question\nWhat?\n", {noHeading}},
        {"Title,Question\na,b\n", {u"The heading, row 1, has no column 'Type'."_s}},
        {"\nType,Question\n", {u"The heading, row 2, has no column 'Column Name'."_s}},
        {heading + "1,,\"a", {u"Row 2 has a quotation mark without its partner."_s}},
        {heading + "1,,a\"b\"", {u":2: A quotation mark stands where none can."_s}},
        {heading + "\xFF", {u":2: The text is not in UTF-8."_s}},
        {QByteArray("\xFF\xFEQ\0u\0", 6),
         {u":1: There is a zero byte; the text must be in UTF-8."_s}},
    };
    for (const auto &[bytes, refusals] : sheets)
        EXPECT_EQ(Refusals(bytes), refusals) << bytes.toStdString();
}

TEST(RefusedSheet, HasCellsThatBreakTheRules)
{
    const QByteArray x33(33, 'x'), x256(256, 'x'), x21(21, 'x');
    const Refused rows[] = {
        {"1,1,T,What?,Text,q,", {}},
        {",,T,What?,,q,", {u"2 Type: Please select an item."_s}},
        {",,T,What?,Essay,q,", {u"2 Type: There is no question type of this name."_s}},
        {",,T,What?,Essay,q,a\\b", {u"2 Type: There is no question type of this name."_s}},
        {",," + x21 + ",What?,Text,q,", {u"2 Title: "_s + titleLimit.message}},
        {",,\"a\"\"b\",What?,Text,q,", {u"2 Title: "_s + doubleQuotes.message}},
        {",,\"a\nb\",What?,Text,q,", {u"2 Title: "_s + lineBreaks.message}},
        {",,T,,Text,q,", {u"2 Question: Please enter a question."_s}},
        {",,T," + x256 + ",Text,q,", {u"2 Question: "_s + questionTextLimit.message}},
        {",,T,\"a\r\nb\",Text,q,",
         {u"2 Question: Carriage returns are not allowed in a question."_s}},
        {",,T,What?,Text, ,", {u"2 Column Name: Please enter a column name."_s}},
        {",,T,What?,Text," + x256 + ",", {u"2 Column Name: "_s + columnNameLimit.message}},
        {",,T,What?,Text,\"a\rb\",", {u"2 Column Name: "_s + lineBreaks.message}},
        {",,T,What?,Text,q,a", {u"2 Items: A question of this type has no items."_s}},
        {",,T,What?,Checkboxes,q,", {u"2 Items: Please enter at least one item"_s}},
        {",,T,What?,Checkboxes,q,\"a\n" + x33 + "\"", {u"2 Items: Item 2: "_s + itemLimit.message}},
        {",,T,What?,Checkboxes,q,\"a\n\na\"",
         {u"2 Items: Item 2: The item already exists. Please enter a different name."_s}},
        {",,T,What?,Checkboxes,q,\"a\n\\-\"", {u"2 Items: Item 2: It is empty."_s}},
        {",,T,What?,Checkboxes,q,a\\b",
         {u"2 Items: '\\b' means nothing; write '\\\\' for a backslash."_s}},
        {"x,1.5,T,What?,Text,q,",
         {u"2 Id: This is no whole number of 32 bits."_s,
          u"2 Order: This is no whole number of 32 bits."_s}},
        {",,T,What?,Text,q,,more", {u"2 : Cell 8 has no caption above it."_s}},
        {",," + x21 + ",,Text,,",
         {u"2 Title: "_s + titleLimit.message, u"2 Column Name: Please enter a column name."_s,
          u"2 Question: Please enter a question."_s}},
    };
    for (const auto &[row, refusals] : rows)
        EXPECT_EQ(Refusals(heading + row), refusals) << row.toStdString();
}

TEST(RefusedSheet, HasRowsThatDoNotGoTogether)
{
    EXPECT_EQ(Refusals(heading + ",,,a,Text,q,\n,,,b,Text,q,\n"),
              QStringList{u"3 Column Name: "_s +
                          "The column name already exists. Please enter a different name."_L1});
    EXPECT_EQ(Refusals(heading + "1,,,a,Checkboxes,p,x\n1,,,b,Checkboxes,q,y\n"),
              QStringList{u"3 Id: Another row has this Id and other items."_s});
}

TEST(RefusedSheet, HasCaptionsAndRowsOfTheFormThatAreNotKnown)
{
    EXPECT_EQ(Refusals("Question,Type,Column Name,Remarks,type,\n"),
              (QStringList{u"1 Remarks: No column has this name."_s,
                           u"1 type: There are two columns of this name."_s}));
    EXPECT_EQ(
        Refusals("Form name,a,,b\nAuthor,x\nNext Id,many\nform name,c\nform name,c\n"
                 "Remembered titles,a\\b\nItem order,x\n" +
                 heading),
        (QStringList{u"1 Form name: There is more than one text beside the name."_s,
                     u"2 Author: No row above the heading has this name."_s,
                     u"3 Next Id: This is no whole number of 32 bits."_s,
                     u"4 form name: There are two rows of this name."_s,
                     u"5 form name: There are two rows of this name."_s,
                     u"6 Remembered titles: '\\b' means nothing; write '\\\\' for a backslash."_s,
                     u"7 Item order: 'x' tells of no items."_s}));
    EXPECT_EQ(
        Refusals(QByteArray(50, 'x') + ",a\n" + heading),
        QStringList{u"1 %1: No row above the heading has this name."_s.arg(QString(40, u'x'))})
        << "of a long name, 40 characters are told";
    EXPECT_EQ(
        Refusals("\nItem order,5:more\n" + heading + "5,,,a,Checkboxes,p,x\n"),
        QStringList{u"2 Item order: The question with the Id 5 has its items in its own row."_s});
}

TEST(RefusedSheet, HasMoreQuestionsThanAProject)
{
    QByteArray rows = heading;
    for (int i = 1; i <= 130; ++i)
        rows += ",,,What?,Text,q" + QByteArray::number(i) + ",\n";
    const SheetImport import = ImportSheet(*ReadSheet(rows));
    EXPECT_EQ(Told(import), (QStringList{u"130 : "_s + questionCountLimit.message,
                                         u"131 : "_s + questionCountLimit.message}));
    EXPECT_EQ(import.added, 128);
    EXPECT_EQ(import.leftOut, 2);

    Project project;
    project.source = SourceWith(127);
    const SheetImport appended =
        AppendSheet(project, *ReadSheet(heading + ",,,a,Text,a,\n,,,b,Text,b,\n"));
    EXPECT_EQ(Told(appended), QStringList{u"3 : "_s + questionCountLimit.message});
    EXPECT_EQ(appended.added, 1);
    EXPECT_EQ(appended.leftOut, 1);
}

TEST(RefusedSheet, LeavesOutWhatIsRefusedAlone)
{
    const SheetImport import = ImportSheet(
        *ReadSheet("Form name,F\nAuthor,x\n" + heading + "5,,,a,Essay,a,\n6,,,b,Text,b,\n"));
    EXPECT_EQ(import.refusals.size(), 2);
    EXPECT_EQ(import.project.FormName, u"F"_s);
    EXPECT_EQ(ColumnNames(import.project.source), QStringList{u"b"_s});
    EXPECT_EQ(import.project.source.Questions().Rows()[0].Order, 1);
    EXPECT_EQ(import.added, 1);
    EXPECT_EQ(import.leftOut, 1);
}
