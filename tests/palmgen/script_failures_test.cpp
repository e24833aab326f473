#include "model/project_reader.h"
#include "scripts.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

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
