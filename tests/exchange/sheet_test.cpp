#include "editing/question_sources.h"
#include "exchange/sheet_import.h"
#include "exchange/sheet_writer.h"
#include "model/project_reader.h"
#include "model/project_writer.h"
#include "support/files.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QByteArray mark = "\xEF\xBB\xBF";

SheetImport ImportedSheet(const QByteArray &bytes)
{
    const Result<Sheet> sheet = ReadSheet(bytes);
    EXPECT_TRUE(sheet) << sheet.error().text.toStdString();
    return sheet ? ImportSheet(*sheet) : SheetImport();
}

Project Small()
{
    Project project = {.FormName = u"Trees"_s,
                       .FormVersion = u"1.0"_s,
                       .Description = u"Two, \"old\"\nones"_s,
                       .FormPath = u"C:\\Trees"_s,
                       .TitleList = {u"Kind"_s, u"A\\B"_s}};
    project.source = SourceWith(2);
    project.source.AddQuestion();
    project.source.Questions().Current() = {3, u""_s, u"How old?"_s, u"Numeric"_s, u"Age"_s, 9};
    project.source.SetMaxId(12);
    return project;
}

} // namespace

TEST(Sheet, HasRowsOfTheFormAndARowForEachQuestion)
{
    EXPECT_EQ(WriteSheet(Small()), mark + "Form name,Trees\r\n"
                                          "Form version,1.0\r\n"
                                          "Description,\"Two, \"\"old\"\"\nones\"\r\n"
                                          "Data folder,C:\\Trees\r\n"
                                          "Next Id,12\r\n"
                                          "Remembered titles,\"Kind\nA\\\\B\"\r\n"
                                          "\r\n"
                                          "Id,Title,Question,Type,Column Name,Items\r\n"
                                          "1,Title 1,Question 1,Pulldown List,q1,\"1 a\n1 b\"\r\n"
                                          "2,Title 2,Question 2,Pulldown List,q2,\"2 a\n2 b\"\r\n"
                                          "9,,How old?,Numeric,Age,\r\n");
    const SheetImport import = ImportedSheet(WriteSheet(Small()));
    EXPECT_EQ(import.refusals, QList<Refusal>());
    EXPECT_EQ(import.added, 3);
    EXPECT_EQ(*WriteProject(import.project), *WriteProject(Small()));
}

TEST(Sheet, TellsOfOrdersAndItemsThatAreNotThoseOfTheRows)
{
    Project project = Small();
    project.source.Questions().MoveFirst();
    project.source.Questions().Current().Order = -7;
    project.source.ReplaceItems(1, {u"new"_s});
    project.source.AppendItems(50, {u"lost"_s});
    const QByteArray bytes = WriteSheet(project);
    EXPECT_TRUE(bytes.contains("Item order,\"2\n1\n50:lost\"\r\n")) << bytes.toStdString();
    EXPECT_TRUE(bytes.contains("Id,Order,Title,Question,Type,Column Name,Items\r\n1,-7,Title 1"));
    EXPECT_EQ(*WriteProject(ImportedSheet(bytes).project), *WriteProject(project));
}

TEST(Sheet, BringsItemsBackThatQuestionsShare)
{
    Project project = Small();
    project.source.Questions().MoveFirst();
    project.source.Questions().Current().Id = 2;
    project.source.Questions().MoveLast();
    project.source.Questions().Current().Id = 2;
    const SheetImport import = ImportedSheet(WriteSheet(project));
    EXPECT_EQ(import.refusals, QList<Refusal>());
    EXPECT_EQ(*WriteProject(import.project), *WriteProject(project));
}

TEST(Sheet, OfAnyExampleGivesTheSameFile)
{
    for (const QString &folder : {DataFile(u"projects"_s), DataFile(u"../../examples"_s)})
        for (const QString &name : QDir(folder).entryList({u"*.vmp"_s})) {
            SCOPED_TRACE(name.toStdString());
            const Result<Project> project = ReadProject(BytesOf(folder + u'/' + name));
            ASSERT_TRUE(project);
            const SheetImport import = ImportedSheet(WriteSheet(*project));
            if (!import.refusals.isEmpty()) {
                EXPECT_TRUE(name.startsWith("edge-"_L1)) << import.refusals[0].reason.toStdString();
                continue;
            }
            EXPECT_EQ(*WriteProject(import.project), *WriteProject(*project));
        }
}

TEST(Sheet, OfAPersonNeedsOnlyColumns)
{
    const SheetImport import =
        ImportedSheet("items;QUESTION; Column Name ;type\r\n"
                      ";How many?;Count;numeric\r\n"
                      "\"Oak\r\n Ash \r\n\";  Which?  ; Kind ;PULLDOWN LIST\r\n"
                      ";;;\r\n");
    EXPECT_EQ(import.refusals, QList<Refusal>());
    EXPECT_EQ(import.added, 2);
    Project expected;
    expected.source.Questions().Append({1, {}, u"How many?"_s, u"Numeric"_s, u"Count"_s, 1});
    expected.source.Questions().Append({2, {}, u"Which?"_s, u"Pulldown List"_s, u"Kind"_s, 2});
    expected.source.AppendItems(2, {u"Oak"_s, u"Ash"_s});
    expected.source.SetMaxId(3);
    EXPECT_EQ(*WriteProject(import.project), *WriteProject(expected));
}

TEST(Sheet, HasItemsThatOnlyLookEmpty)
{
    const SheetImport import =
        ImportedSheet("Question,Type,Column Name,Items\na,Checkboxes,b,\xC2\xA0\n");
    EXPECT_EQ(import.refusals, QList<Refusal>());
    EXPECT_EQ(ItemsOf(import.project.source, 1), QStringList{u"\u00a0"_s});
}

TEST(Sheet, IsReadWhateverSeparatesItsCells)
{
    const QByteArray commas = WriteSheet(Small());
    QByteArray semicolons = commas, tabs = commas.sliced(mark.size());
    // None of the cells has either outside quotation marks, but for the description.
    semicolons.replace(',', ';').replace("Two; ", "Two, ");
    tabs.replace(',', '\t').replace("Two\t ", "Two, ");
    for (const QByteArray &bytes : {semicolons, tabs})
        EXPECT_EQ(*WriteProject(ImportedSheet(bytes).project), *WriteProject(Small()));
}

TEST(Sheet, GivesRowsWithoutIdsFreshOnes)
{
    const QByteArray heading = "Id,Question,Type,Column Name\n";
    const auto ids = [](const SheetImport &import) {
        QList<int> all;
        for (const QuestionRow &row : import.project.source.Questions().Rows())
            all += row.Id;
        return all += import.project.source.MaxId();
    };
    EXPECT_EQ(ids(ImportedSheet(heading + ",a,Text,a\n7,b,Text,b\n,c,Text,c\n")),
              (QList<int>{8, 7, 9, 10}));
    EXPECT_EQ(ids(ImportedSheet("Next Id,2\n" + heading + ",a,Text,a\n2,b,Text,b\n,c,Text,c\n")),
              (QList<int>{3, 2, 4, 5}));
    EXPECT_EQ(ids(ImportedSheet("Next Id,2\nItem order,2:x\n" + heading + ",a,Text,a\n")),
              (QList<int>{3, 4}));
    const SheetImport full = ImportedSheet(heading + "2147483647,a,Text,a\n,b,Text,b\n");
    EXPECT_EQ(ids(full), (QList<int>{2147483647, 2147483647}));
    EXPECT_EQ(full.refusals, (QList<Refusal>{{3, u"Id"_s, u"There is no Id left."_s, 2}}));
    EXPECT_EQ(ids(ImportedSheet(heading + "-5,a,Text,a\n")), (QList<int>{-5, 1}));
}

TEST(Sheet, IsAppendedUnderFreshIdsAndFreeNames)
{
    Project project = Small();
    const Result<Sheet> sheet = ReadSheet(WriteSheet(Small()));
    const SheetImport import = AppendSheet(project, *sheet);
    EXPECT_EQ(import.refusals, QList<Refusal>());
    EXPECT_EQ(import.added, 3);
    const clsDataSource &source = import.project.source;
    EXPECT_EQ(ColumnNames(source),
              (QStringList{u"q1"_s, u"q2"_s, u"Age"_s, u"q1(1)"_s, u"q2(1)"_s, u"Age(1)"_s}));
    ExpectOrderWithoutGaps(source);
    EXPECT_EQ(source.Questions().Rows()[3].Id, 12);
    EXPECT_EQ(ItemsOf(source, 13), (QStringList{u"2 a"_s, u"2 b"_s}));
    EXPECT_EQ(source.MaxId(), 15);
    EXPECT_EQ(import.project.TitleList, project.TitleList);
}
