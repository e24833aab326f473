#include "ui/common/picture_box.h"
#include "ui/main/questions_fixture.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(Questions, AreDeletedAfterAYes)
{
    const Questions questions(3, 2, u"Checkboxes"_s, 2);
    {
        const PromptScript prompts({u"No"_s});
        questions.Click("cmdDel");
        ASSERT_EQ(prompts.boxes().size(), 1u);
        EXPECT_EQ(prompts.boxes()[0].text, reallyDelete);
        EXPECT_EQ(prompts.boxes()[0].defaultButton, u"No"_s);
    }
    EXPECT_EQ(questions.ColumnNames().size(), 3);
    EXPECT_FALSE(questions.ProjectChanged());

    const PromptScript prompts({u"Yes"_s});
    questions.Click("cmdDel");
    EXPECT_EQ(prompts.texts(), QStringList{reallyDelete});
    EXPECT_EQ(questions.ColumnNames(), (QStringList{u"q1"_s, u"q2"_s}));
    EXPECT_EQ(questions.Row(), 1) << "the new last one is current";
    EXPECT_EQ(questions.Caption("lblq_num"), u"2 of 2"_s);
    EXPECT_EQ(questions.project().source.Items().Count(), 4);
    EXPECT_TRUE(questions.ProjectChanged());
}

TEST(Questions, LeaveABlankPreviewAfterTheOnlyOne)
{
    const Questions questions(1, 0, u"Checkboxes"_s, 3);
    const PromptScript prompts({u"Yes"_s});
    questions.Click("cmdDel");
    EXPECT_EQ(prompts.texts(), QStringList{reallyDelete});
    EXPECT_TRUE(questions.ColumnNames().isEmpty());
    for (const char *label : {"lblq_num", "lblTitle", "lblQuestion"})
        EXPECT_EQ(questions.Caption(label), QString());
    EXPECT_FALSE(questions.Find<QWidget>("lstCheckBox")->isVisible());
    EXPECT_FALSE(questions.Find<QLabel>("lblTitle")->autoFillBackground());
    EXPECT_FALSE(questions.Find<PictureBox>("picPalm")->ShowsPicture());
    for (int column = 0; column < 5; ++column)
        EXPECT_GT(questions.Grid()->columnWidth(column), 20);
}

TEST(Questions, MoveAndStaySelected)
{
    const Questions questions(5, 3);
    const PromptScript prompts;
    questions.Click("cmdUp");
    EXPECT_EQ(questions.ColumnNames(), (QStringList{u"q1"_s, u"q2"_s, u"q4"_s, u"q3"_s, u"q5"_s}));
    EXPECT_EQ(questions.Row(), 2);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 4"_s);
    EXPECT_EQ(questions.Caption("lblq_num"), u"3 of 5"_s);
    EXPECT_TRUE(questions.ProjectChanged());
    questions.Click("cmdDown");
    EXPECT_EQ(questions.Row(), 3);
    EXPECT_TRUE(prompts.boxes().empty());
}

TEST(Questions, DoNotMoveBeyondTheEnds)
{
    const Questions questions(2, 0);
    const PromptScript prompts;
    questions.Click("cmdUp");
    questions.ClickRow(1);
    questions.Click("cmdDown");
    EXPECT_EQ(questions.ColumnNames(), (QStringList{u"q1"_s, u"q2"_s}));
    EXPECT_FALSE(questions.ProjectChanged());
    EXPECT_TRUE(prompts.boxes().empty());
}

TEST(Questions, AreDuplicatedAfterAYesAndTheProjectCountsAsUnchanged)
{
    const Questions questions(2, 0);
    {
        const PromptScript prompts({u"No"_s});
        questions.Click("cmdDuplic");
        EXPECT_EQ(prompts.texts(), QStringList{reallyDuplicate});
    }
    EXPECT_EQ(questions.ColumnNames().size(), 2);
    const PromptScript prompts({u"Yes"_s});
    questions.Click("cmdDuplic");
    EXPECT_EQ(questions.ColumnNames(), (QStringList{u"q1"_s, u"q2"_s, u"q1(1)"_s}));
    EXPECT_EQ(questions.Row(), 0);
    EXPECT_EQ(questions.Caption("lblq_num"), u"1 of 3"_s);
    EXPECT_FALSE(questions.ProjectChanged());

    questions.Choose("mnuFileNew");
    EXPECT_EQ(prompts.texts(), QStringList{reallyDuplicate})
        << "the duplicate goes without a question";
    EXPECT_EQ(questions.project().source.QuestionCount(), 0);
}

TEST(Questions, RefuseADuplicateWhoseNameIsTooLong)
{
    Questions questions(1, 0);
    auto &source = const_cast<Project &>(questions.project()).source;
    source.Questions().Current().ColumnName = QString(253, u'a');
    const PromptScript prompts({u"Yes"_s, u"OK"_s});
    questions.Click("cmdDuplic");
    EXPECT_EQ(prompts.texts(),
              (QStringList{reallyDuplicate, u"Column Name is too long to copy"_s}));
    EXPECT_EQ(questions.ColumnNames().size(), 1);
}

} // namespace
