#include "model/project_writer.h"

#include "model/project_reader.h"
#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// The text of a written project, without the CR of its line ends; empty when it is refused.
QByteArray Written(const Project &project)
{
    const Result<QByteArray> bytes = WriteProject(project);
    if (!bytes) {
        ADD_FAILURE() << bytes.error().text.toStdString();
        return {};
    }
    return QByteArray(*bytes).replace("\r\n", "\n");
}

void AddQuestion(Project &project, const QuestionRow &row)
{
    project.source.AddQuestion();
    project.source.Questions().Current() = row;
}

QString RefusalOf(const Project &project)
{
    const Result<QByteArray> bytes = WriteProject(project);
    return bytes ? u"written"_s : bytes.error().text;
}

} // namespace

TEST(ProjectWriter, WritesANewProject)
{
    EXPECT_EQ(Written(Project()), "<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n"
                                  "<root>\n"
                                  "<Company>Brindlecot Data Collect</Company>\n"
                                  "<FormName></FormName>\n"
                                  "<FormVersion></FormVersion>\n"
                                  "<Description></Description>\n"
                                  "<FormPath></FormPath>\n"
                                  "<MaxId><![CDATA[1]]></MaxId>\n"
                                  "<rcMain>\n"
                                  "</rcMain>\n"
                                  "\n"
                                  "<rcChilds>\n"
                                  "</rcChilds>\n"
                                  "<TitleList>\n"
                                  "</TitleList>\n"
                                  "</root>\n");
}

TEST(ProjectWriter, EndsEveryLineInCrLf)
{
    const Result<QByteArray> bytes = WriteProject(Project());
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->count('\n'), 16);
    EXPECT_EQ(bytes->count("\r\n"), 16);
    EXPECT_EQ(bytes->count('\r'), 16);
}

Project ShortSurvey()
{
    Project project;
    project.FormName = u"Survey"_s;
    project.FormPath = uR"(C:\Data)"_s;
    project.source.SetMaxId(8);
    AddQuestion(project, {.Order = 3,
                          .Title = u"Age"_s,
                          .Question = u"How old?"_s,
                          .Type = u"Numeric"_s,
                          .ColumnName = u"AGE"_s,
                          .Id = 7});
    project.source.AddItem();
    project.source.Items().Current() = {.Id = 7, .Item = u"Red"_s};
    project.TitleList = QStringList{u"Age"_s, u""_s, u"Name"_s};
    return project;
}

TEST(ProjectWriter, WritesQuestionsItemsAndTitles)
{
    const QByteArray text = Written(ShortSurvey());
    EXPECT_TRUE(text.contains("<FormPath><![CDATA[C:\\Data]]></FormPath>\n"
                              "<MaxId><![CDATA[8]]></MaxId>\n"
                              "<rcMain>\n"
                              "<record>\n"
                              "<Order><![CDATA[3]]></Order>\n"
                              "<Type><![CDATA[Numeric]]></Type>\n"
                              "<Title><![CDATA[Age]]></Title>\n"
                              "<ColumnName><![CDATA[AGE]]></ColumnName>\n"
                              "<Question><![CDATA[How old?]]></Question>\n"
                              "<Id><![CDATA[7]]></Id>\n"
                              "</record>\n"
                              "</rcMain>\n"
                              "\n"
                              "<rcChilds>\n"
                              "<record>\n"
                              "<Id><![CDATA[7]]></Id>\n"
                              "<Item><![CDATA[Red]]></Item>\n"
                              "</record>\n"
                              "</rcChilds>\n"
                              "<TitleList>\n"
                              "<Item><![CDATA[Age]]></Item>\n"
                              "<Item></Item>\n"
                              "<Item><![CDATA[Name]]></Item>\n"
                              "</TitleList>\n"
                              "</root>\n"))
        << text.toStdString();
}

TEST(ProjectWriter, WritesValuesTrimmedOfBlanksAlone)
{
    const struct {
        const char *what;
        QString value;
        QByteArray element;
    } rows[] = {
        {"two blanks at each end", u"  Stock check  "_s,
         "<Description><![CDATA[Stock check]]></Description>"},
        {"nothing but blanks", u"   "_s, "<Description></Description>"},
        {"tab and line feed stay", u"\ta\n"_s, "<Description><![CDATA[\ta\n]]></Description>"},
        {"line ends become line feeds", u"a\r\nb\rc\n"_s,
         "<Description><![CDATA[a\nb\nc\n]]></Description>"},
        {"markup needs no escape", u"a & <b> \"c\""_s,
         "<Description><![CDATA[a & <b> \"c\"]]></Description>"},
        {"the end of a CDATA section is written as it stands", u"a]]>b"_s,
         "<Description><![CDATA[a]]>b]]></Description>"},
        {"the code page's own characters", u"5 \u20AC caf\u00E9"_s,
         "<Description><![CDATA[5 \x80 caf\xE9]]></Description>"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        Project project;
        project.Description = row.value;
        EXPECT_TRUE(Written(project).contains("\n" + row.element + "\n"));
    }
}

TEST(ProjectWriter, ATitleListThatBeginsEmptyIsNotWritten)
{
    Project project;
    project.TitleList = QStringList{u""_s, u"Age"_s};
    EXPECT_TRUE(Written(project).contains("<TitleList>\n</TitleList>"));
    project.TitleList = QStringList();
    EXPECT_TRUE(Written(project).contains("<TitleList>\n</TitleList>"));
}

TEST(ProjectWriter, AFilterHidesNothingFromTheFile)
{
    Project project;
    for (const int id : {1, 2, 1}) {
        project.source.AddItem();
        project.source.Items().Current() = {id, u"Red"_s};
    }
    project.source.FilterItems(2);
    EXPECT_EQ(Written(project).count("<Item>"), 3);
}

TEST(ProjectWriter, RefusesWhatCouldNotBeReadAgainForItsSize)
{
    Project project;
    project.Description = QString(16LL * 1024 * 1024, u'x');
    EXPECT_EQ(RefusalOf(project), u"The project is larger than any file of one can be."_s);
}

TEST(ProjectWriter, WritingLeavesTheCursorWhereItIs)
{
    Project project;
    AddQuestion(project, {.Order = 1, .Id = 1});
    AddQuestion(project, {.Order = 2, .Id = 2});
    project.source.MoveFirst();
    Written(project);
    EXPECT_EQ(project.source.Questions().Current().Id, 1);
}

/// Of a project of two questions, after a change of the second or of its item.
template <typename Change> QString RefusalAfter(Change change)
{
    Project project;
    AddQuestion(project, {.Order = 1, .Id = 4});
    AddQuestion(project, {.Order = 2, .Id = 9});
    project.source.AddItem();
    project.source.Items().Current() = {.Id = 9, .Item = u"Red"_s};
    change(project);
    return RefusalOf(project);
}

const QString omega = u"\u03A9"_s;
const QString tail = u" has the character '\u03A9' (U+03A9), "
                     "which windows-1252 does not have."_s;

TEST(ProjectWriter, RefusesWhatTheFileCannotHold)
{
    EXPECT_EQ(RefusalAfter([](Project &) {}), u"written"_s);
    EXPECT_EQ(RefusalAfter([](Project &p) { p.FormName = omega; }), u"The form name"_s + tail);
    EXPECT_EQ(RefusalAfter([](Project &p) { p.FormVersion = omega; }),
              u"The form version"_s + tail);
    EXPECT_EQ(RefusalAfter([](Project &p) { p.Description = omega; }), u"The description"_s + tail);
    EXPECT_EQ(RefusalAfter([](Project &p) { p.FormPath = omega; }), u"The data folder"_s + tail);
    EXPECT_EQ(RefusalAfter([](Project &p) { p.TitleList = QStringList{omega}; }),
              u"The title history"_s + tail);
    EXPECT_EQ(RefusalAfter([](Project &p) { p.source.Questions().Current().Title = omega; }),
              u"The title of question 2"_s + tail);
    EXPECT_EQ(RefusalAfter([](Project &p) { p.source.Questions().Current().Question = omega; }),
              u"The question text of question 2"_s + tail);
    EXPECT_EQ(RefusalAfter([](Project &p) { p.source.Questions().Current().ColumnName = omega; }),
              u"The column name of question 2"_s + tail);
    EXPECT_EQ(RefusalAfter([](Project &p) { p.source.Questions().Current().Type = omega; }),
              u"The type of question 2"_s + tail);
    EXPECT_EQ(RefusalAfter([](Project &p) { p.source.Items().Current().Item = omega; }),
              u"The item list of question 2"_s + tail);
    EXPECT_EQ(RefusalAfter([](Project &p) {
                  p.source.Items().Current() = {5, omega};
              }),
              u"The item list"_s + tail)
        << "an item of no question";
    EXPECT_EQ(RefusalAfter([](Project &p) { p.FormName = u"a\u000Bb"_s; }),
              u"The form name has a control character (U+000B), "
              "which a project file cannot hold."_s);
    EXPECT_EQ(RefusalAfter([](Project &p) {
                  p.FormName = omega;
                  p.Description = u"\u4E2D"_s;
              }),
              u"The form name"_s + tail)
        << "the first in the file's order";
}

TEST(ProjectWriter, WritesTheExampleOfItsPage)
{
    const QByteArray page = BytesOf(DataFile(u"../../docs/project-file.md"_s));
    const qsizetype start = page.indexOf("    <?xml");
    const qsizetype end = page.indexOf("    </root>\n") + 12;
    ASSERT_GT(end, start);
    QByteArray example = "\n" + page.sliced(start, end - start);
    example = example.replace("\n    ", "\n").trimmed().replace("\n", "\r\n") + "\r\n";

    const Result<Project> project = ReadProject(example);
    ASSERT_TRUE(project) << Describe(project.error()).toStdString();
    EXPECT_EQ(project->source.ItemsOf(2), QStringList{u"Wren"_s});
    const Result<QByteArray> written = WriteProject(*project);
    ASSERT_TRUE(written);
    EXPECT_EQ(*written, example);
}
