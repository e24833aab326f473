#include "model/project_reader.h"
#include "scripts.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

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
