#include "model/project_writer.h"
#include "small_project.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(ProjectReader, ReadsEveryValue)
{
    const Project project = Read(smallProject);
    EXPECT_EQ(project.FormName, u"Survey"_s);
    EXPECT_EQ(project.FormVersion, u"1.0"_s);
    EXPECT_EQ(project.Description, u"Words"_s);
    EXPECT_EQ(project.FormPath, uR"(C:\Data)"_s);
    EXPECT_EQ(project.source.MaxId(), 8);
    EXPECT_EQ(project.TitleList, QStringList{u"Age"_s});

    ASSERT_EQ(project.source.QuestionCount(), 1);
    const QuestionRow &question = project.source.Questions().Current();
    EXPECT_EQ(question.Order, 1);
    EXPECT_EQ(question.Type, u"Text"_s);
    EXPECT_EQ(question.Title, u"Age"_s);
    EXPECT_EQ(question.ColumnName, u"AGE"_s);
    EXPECT_EQ(question.Question, u"How old?"_s);
    EXPECT_EQ(question.Id, 7);
    ASSERT_EQ(project.source.Items().Count(), 1);
    EXPECT_EQ(project.source.Items().Current().Id, 7);
    EXPECT_EQ(project.source.Items().Current().Item, u"Red"_s);
}

TEST(ProjectReader, TakesElementsInAnyOrder)
{
    const QByteArray company = "<Company>Brindlecot Data Collect</Company>\n";
    QByteArray moved = Changed(company, "");
    moved.replace("</root>", company + "</root>");
    EXPECT_EQ(Read(moved).FormName, u"Survey"_s);

    const QByteArray record =
        Changed("<Id>7</Id><Item>Red</Item>", "<Item>Red</Item>  <!-- colour -->\n<Id>7</Id>");
    EXPECT_EQ(Read(record).source.Items().Current().Id, 7);
}

TEST(ProjectReader, OfElementsThatStandTwiceTheFirstCounts)
{
    EXPECT_EQ(Read(Changed("</FormName>", "</FormName><FormName>Late</FormName>")).FormName,
              u"Survey"_s);
    EXPECT_EQ(Read(Changed("<FormName>Survey", "<FormName></FormName><FormName>Survey")).FormName,
              u""_s)
        << "also where it is empty";
    const Project twoTables = Read(Changed("</rcMain>", "</rcMain><rcMain><x/></rcMain>"));
    EXPECT_EQ(twoTables.source.QuestionCount(), 1);
    EXPECT_EQ(
        Read(Changed("<Id>7</Id></record></rcMain>", "<Id>7</Id><Id>9</Id></record></rcMain>"))
            .source.Questions()
            .Current()
            .Id,
        7);
    EXPECT_EQ(Read(Changed("</Company>", "</Company><Company>Another</Company>")).FormName,
              u"Survey"_s);
}

TEST(ProjectReader, PassesOverWhatItDoesNotKnow)
{
    EXPECT_EQ(Read(Changed("<MaxId>", "<Colour><FormName>x</FormName></Colour><MaxId>")).FormName,
              u"Survey"_s);
    const Project renamed = Read(Changed("<record><Order>", "<question><Order>")
                                     .replace("</record></rcMain>", "</question></rcMain>"));
    EXPECT_EQ(renamed.source.QuestionCount(), 1) << "a record may have any name";
    EXPECT_EQ(
        Read(Changed("<root>", "<x:root a='b' x:c='d'>").replace("</root>", "</x:root>")).FormName,
        u"Survey"_s)
        << "attributes, and prefixes that nobody declared";
    EXPECT_EQ(Read(Changed("Survey", "Sur<b>v</b>ey<!-- -->!")).FormName, u"Survey!"_s)
        << "the text of an element is all the text in it";
}

TEST(ProjectReader, TakesBothCompanyTags)
{
    EXPECT_EQ(RefusalOf(Changed("Brindlecot Data", "Harlo Data")), u"read"_s);
    const Result<QByteArray> again = WriteProject(Read(Changed("Brindlecot Data", "Harlo Data")));
    ASSERT_TRUE(again);
    EXPECT_TRUE(again->contains("<Company>Brindlecot Data Collect</Company>"));
}

TEST(ProjectReader, TheTitleListIsThatOfTheFile)
{
    EXPECT_EQ(Read(Changed("<Item>Age</Item>", "<Item></Item><x>B</x>")).TitleList,
              (QStringList{u""_s, u"B"_s}));
    EXPECT_EQ(Read(Changed("<Item>Age</Item>", "")).TitleList, QStringList{u""_s})
        << "without a title it is that of a new project";
}

TEST(ProjectReader, WhatWasWrittenComesBackTheSame)
{
    for (const QString &name :
         {u"SiteVisit"_s, u"Nestbox"_s, u"edge-blank"_s, u"edge-disorder"_s, u"edge-latin"_s,
          u"edge-noitems"_s, u"edge-quotes"_s, u"random-12"_s}) {
        SCOPED_TRACE(name.toStdString());
        const QByteArray bytes = BytesOf(DataFile(u"projects/%1.vmp"_s.arg(name)));
        ASSERT_FALSE(bytes.isEmpty());
        const Result<QByteArray> again = WriteProject(Read(bytes));
        ASSERT_TRUE(again);
        EXPECT_EQ(*again, bytes);
    }
}
