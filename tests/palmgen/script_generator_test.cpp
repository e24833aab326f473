#include "palmgen/script_generator.h"

#include "model/project_reader.h"
#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString identifier = u"0123456789ABCDEF0123456789ABCDEF"_s;

void AddQuestion(Project &project, const QuestionRow &row)
{
    project.source.AddQuestion();
    project.source.Questions().Current() = row;
}

void AddItem(Project &project, int id, const QString &item)
{
    project.source.AddItem();
    project.source.Items().Current() = {id, item};
}

Project ProjectOf(const QuestionRow &question)
{
    Project project;
    project.FormName = u"Survey"_s;
    AddQuestion(project, question);
    return project;
}

QByteArray Lines(const Project &project, const QString &withIdentifier = identifier)
{
    const Script script = GenerateScript(project, withIdentifier);
    EXPECT_TRUE(script.outcome) << (script.outcome ? ""
                                                   : script.outcome.error().text.toStdString());
    return script.bytes;
}

/// The line that begins with these words, without its CR LF.
QByteArray LineOf(const QByteArray &script, const QByteArray &beginning)
{
    const qsizetype start = ("\n" + script).indexOf("\n" + beginning);
    return start < 0 ? QByteArray() : script.sliced(start, script.indexOf("\r\n", start) - start);
}

} // namespace

TEST(ScriptGenerator, WritesEveryKnownProjectByteForByte)
{
    for (const QString &name : {u"SiteVisit"_s, u"Nestbox"_s, u"edge-blank"_s, u"edge-disorder"_s,
                                u"edge-latin"_s, u"edge-quotes"_s, u"random-12"_s}) {
        SCOPED_TRACE(name.toStdString());
        const auto project = ReadProject(BytesOf(DataFile(u"projects/%1.vmp"_s.arg(name))));
        ASSERT_TRUE(project);
        const QByteArray script = BytesOf(DataFile(u"projects/%1.rcp"_s.arg(name)));
        ASSERT_FALSE(script.isEmpty());
        EXPECT_EQ(Lines(*project), script);
    }
}

TEST(ScriptGenerator, WritesTheTwoQuestionSurvey)
{
    Project project;
    project.FormName = u"Survey"_s;
    project.FormVersion = u"1.0"_s;
    project.Description = u"Visit \"A\""_s;
    project.FormPath = uR"(C:\Data)"_s;
    AddQuestion(project, {.Order = 1,
                          .Title = u"Name"_s,
                          .Question = u"Your name?"_s,
                          .Type = u"Text"_s,
                          .ColumnName = u"NAME"_s,
                          .Id = 1});
    AddQuestion(project, {.Order = 2,
                          .Title = u"City"_s,
                          .Question = u"Your city?"_s,
                          .Type = u"Text"_s,
                          .ColumnName = u"CITY"_s,
                          .Id = 2});
    EXPECT_EQ(Lines(project), BytesOf(DataFile(u"scripts/Survey.rcp"_s)));
}

TEST(ScriptGenerator, CountsInTwoHexadecimalDigits)
{
    for (const auto &[count, line] : {std::pair{0, "0x00 0x00"},
                                      {1, "0x00 0x01"},
                                      {20, "0x00 0x14"},
                                      {128, "0x00 0x80"},
                                      {255, "0x00 0xFF"}}) {
        SCOPED_TRACE(count);
        Project project;
        for (int i = 1; i <= count; ++i)
            AddQuestion(project, {.Order = i, .Type = u"Notes"_s, .Id = i});
        EXPECT_TRUE(Lines(project).startsWith("hex\"flds\" ID 1000\r\n" + QByteArray(line) +
                                              "\r\nhex\"fldt\" ID 1001\r\n"));
    }
}

TEST(ScriptGenerator, FailsOnMoreQuestionsThanItsCountHolds)
{
    Project project;
    for (int i = 1; i <= 256; ++i)
        AddQuestion(project, {.Order = i, .Type = u"Notes"_s, .Id = i});
    const Script script = GenerateScript(project, identifier);
    ASSERT_FALSE(script.outcome);
    EXPECT_EQ(script.outcome.error().text,
              u"The project has 256 questions, and a script holds no more than 255"_s);
}

TEST(ScriptGenerator, FailsOnAListQuestionWithoutItems)
{
    const auto project = ReadProject(BytesOf(DataFile(u"projects/edge-noitems.vmp"_s)));
    ASSERT_TRUE(project);
    const Script script = GenerateScript(*project, identifier);
    ASSERT_FALSE(script.outcome);
    EXPECT_TRUE(script.outcome.error().text.endsWith(u"is a list without items"));
    EXPECT_TRUE(script.bytes.startsWith("hex\"flds\"")) << "what was written until then";
    EXPECT_FALSE(script.bytes.contains("applicationiconname"));
}

TEST(ScriptGenerator, AnOnlyItemThatIsEmptyIsNoItemOnTheLine)
{
    Project project = ProjectOf({.Type = u"Pulldown List"_s, .Id = 4});
    AddItem(project, 4, u""_s);
    EXPECT_TRUE(LineOf(Lines(project), "LIST").startsWith("LIST ID 3"));
}

TEST(ScriptGenerator, TakesItemsByIdInTableOrder)
{
    Project project = ProjectOf({.Type = u"Pulldown List"_s, .Id = 4});
    AddQuestion(project, {.Type = u"Checkboxes"_s, .Id = 2});
    AddItem(project, 2, u"one"_s);
    AddItem(project, 4, u"Red, or so"_s);
    AddItem(project, 9, u"of nobody"_s);
    AddItem(project, 2, u"two"_s);
    AddItem(project, 4, u"2\""_s);
    const QByteArray script = Lines(project);
    EXPECT_TRUE(script.contains("LIST \"Red\" \" or so\" \"2\"\" ID 3 AT"));
    EXPECT_TRUE(script.contains("LIST \"one\" \"two\" ID 4 AT"));
    EXPECT_FALSE(script.contains("nobody"));
}

TEST(ScriptGenerator, NumbersFormsByTheirPlace)
{
    Project project = ProjectOf({.Order = 7, .Title = u"one"_s, .Type = u"Text"_s, .Id = 30});
    AddQuestion(project, {.Order = 5, .Title = u"two"_s, .Type = u"Text"_s, .Id = 20});
    AddQuestion(project, {.Order = 6, .Title = u"three"_s, .Type = u"Text"_s, .Id = 10});
    const QByteArray script = Lines(project);
    for (const auto &[number, title] :
         {std::pair<QByteArray, QByteArray>{"1", "one"}, {"2", "two"}, {"3", "three"}}) {
        EXPECT_TRUE(script.contains("\r\nFORM ID " + number +
                                    " at (0 0 160 160)\r\nnoframe\r\nnosavebehind\r\nbegin\r\n"
                                    "title \"" +
                                    title + "\"\r\n"));
        EXPECT_TRUE(script.contains("\r\nNAVIGATION ID " + number + "\r\n"));
    }
    EXPECT_EQ(script.count("FORM ID"), 3);
}

TEST(ScriptGenerator, WritesTheDataFolderWithOneBackslashAtItsEnd)
{
    const struct {
        const char *what;
        QString folder;
        QByteArray line;
    } rows[] = {
        {"one is added", uR"(D:\Forms)"_s, R"("D:\\Forms\\" 0x00)"},
        {"one is there", uR"(D:\Forms\)"_s, R"("D:\\Forms\\" 0x00)"},
        {"all are doubled", uR"(C:\a\\b)"_s, R"("C:\\a\\\\b\\" 0x00)"},
        {"nothing but the added one", u""_s, R"("\\" 0x00)"},
        {"blanks are not trimmed", uR"( C:\a )"_s, R"(" C:\\a \\" 0x00)"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        Project project;
        project.FormPath = row.folder;
        EXPECT_TRUE(Lines(project).contains("HEX \"sdir\" id 1005\r\n" + row.line + "\r\n\r\n"));
    }
}

TEST(ScriptGenerator, WritesAnEmptyIdentifierWhenNoneCouldBeMade)
{
    EXPECT_TRUE(Lines(Project(), u""_s).contains("HEX \"guid\" id 1006\r\n\"\" 0x00\r\n\r\n"));
}

TEST(ScriptGenerator, EscapesDescriptionAndQuestionAlone)
{
    Project project = ProjectOf({.Title = u"a\"b"_s,
                                 .Question = u"say \"hi\""_s,
                                 .Type = u"Text"_s,
                                 .ColumnName = u"c\"d"_s,
                                 .Id = 1});
    project.FormName = u" n\"x "_s;
    project.FormVersion = u"1\"0"_s;
    const QByteArray script = Lines(project);
    EXPECT_EQ(LineOf(script, "title"), "title \"a\"b\"");
    EXPECT_EQ(LineOf(script, "label \"say"), "label \"say \\\"hi\\\"\" id 1 AT (10 34) FONT 1");
    EXPECT_EQ(LineOf(script, "STRINGTABLE"), "STRINGTABLE ID 1004 \"\" \"c\"d\"");
    EXPECT_EQ(LineOf(script, "applicationiconname"), "applicationiconname id 1000 \" n\"x \"")
        << "the name as typed";
    EXPECT_EQ(LineOf(script, "version"), "version id 1 \"1\"0\"");
}

TEST(ScriptGenerator, EscapesQuotes)
{
    const struct {
        const char *what;
        QString text, escaped;
    } rows[] = {
        {"nothing", u""_s, u""_s},
        {"a quote", uR"(Say "hi")"_s, uR"(Say \"hi\")"_s},
        {"one that is escaped already", uR"(Say \"hi\")"_s, uR"(Say \"hi\")"_s},
        {"more backslashes in front are folded too", uR"(\\\"a)"_s, uR"(\"a)"_s},
        {"quotes side by side", uR"("")"_s, uR"(\"\")"_s},
        {"other backslashes stay", uR"(C:\a\\b\)"_s, uR"(C:\a\\b\)"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(EscapeScriptString(row.text), row.escaped);
    }
    EXPECT_EQ(EscapeScriptString(QString(1000000, u'\\') + u'"'), uR"(\")"_s);
}

TEST(ScriptGenerator, AnUnknownTypeGivesItsLineAndCodes)
{
    const QByteArray script = Lines(ProjectOf({.Type = u"text"_s, .Id = 1}));
    EXPECT_TRUE(script.contains("hex\"fldt\" ID 1001\r\n0x10 \r\n"));
    EXPECT_TRUE(script.contains("hex\"ques\" ID 1002\r\n0x10 \r\n"));
    EXPECT_TRUE(script.contains("FONT 1\r\nWrong Type\r\nBUTTON"));
}

TEST(ScriptGenerator, FailsOnACharacterThatTheCodePageLacks)
{
    Project project = ProjectOf({.Title = u"5 k\u03A9"_s, .Type = u"Text"_s, .Id = 1});
    const Script script = GenerateScript(project, identifier);
    ASSERT_FALSE(script.outcome);
    EXPECT_EQ(script.outcome.error().text,
              u"The title of question 1 has the character '\u03A9' (U+03A9), "
              "which windows-1252 does not have."_s);
    EXPECT_TRUE(script.bytes.endsWith("title \"5 k"));
}

TEST(ScriptGenerator, ReadsTheIdentifierFromItsRegistryForm)
{
    EXPECT_EQ(IdentifierDigits(u"{01234567-89AB-CDEF-0123-456789ABCDEF}"_s), identifier);
    EXPECT_EQ(IdentifierDigits(u""_s), u""_s);
}

TEST(ScriptGenerator, AFilterHidesNothingFromTheScript)
{
    Project project = ProjectOf({.Type = u"Pulldown List"_s, .Id = 4});
    AddItem(project, 4, u"Red"_s);
    project.source.FilterItems(9);
    EXPECT_TRUE(Lines(project).contains("LIST \"Red\" ID 3"));
}

TEST(ScriptGenerator, LeavesTheCursorWhereItIs)
{
    Project project = ProjectOf({.Type = u"Text"_s, .Id = 1});
    AddQuestion(project, {.Type = u"Text"_s, .Id = 2});
    project.source.MoveFirst();
    Lines(project);
    EXPECT_EQ(project.source.Questions().Current().Id, 1);
}
