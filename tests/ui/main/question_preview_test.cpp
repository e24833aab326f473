#include "ui/common/picture_box.h"
#include "ui/main/questions_fixture.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(QuestionPreview, IsRefreshedByAClickAndByFourKeys)
{
    const Questions questions(4, 1);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 2"_s);
    QTest::keyClick(questions.Grid(), Qt::Key_Down);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 3"_s);
    QTest::keyClick(questions.Grid(), Qt::Key_Up);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 2"_s);
    QTest::keyClick(questions.Grid(), Qt::Key_PageDown);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 4"_s);
    QTest::keyClick(questions.Grid(), Qt::Key_PageUp);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 1"_s);
}

TEST(QuestionPreview, FollowsAChangeOfTheRowOnceAfterAClick)
{
    const Questions questions(4, 0);
    QTest::keyPress(questions.Grid(), Qt::Key_Down);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 2"_s) << "the click left its mark";
    QTest::keyPress(questions.Grid(), Qt::Key_Down);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 2"_s) << "which was used up";
    QTest::keyRelease(questions.Grid(), Qt::Key_Down);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 3"_s);
}

TEST(QuestionPreview, ForgetsTheClickWithADuplicate)
{
    const Questions questions(4, 0);
    const PromptScript prompts({u"Yes"_s});
    questions.Click("cmdDuplic");
    EXPECT_EQ(prompts.texts(), QStringList{reallyDuplicate});
    QTest::keyPress(questions.Grid(), Qt::Key_Down);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 1"_s);
}

TEST(QuestionPreview, ShowsPictureTitleAndQuestion)
{
    const Questions questions(1, 0, u"Notes"_s);
    EXPECT_TRUE(questions.Find<PictureBox>("picPalm")->ShowsPicture());
    EXPECT_TRUE(questions.Find<QLabel>("lblTitle")->autoFillBackground());
    EXPECT_EQ(questions.Caption("lblQuestion"), u"Question 1"_s);
    EXPECT_FALSE(questions.Find<QWidget>("lstCheckBox")->isVisible());
}

TEST(QuestionPreview, ShowsSixItemsAndLeavesRoomWhereThereAreMore)
{
    const struct {
        int items, width;
    } rows[] = {{6, 2295}, {9, 2150}};
    for (const auto &row : rows) {
        const Questions questions(1, 0, u"Checkboxes"_s, row.items);
        const auto *list = questions.Find<QListWidget>("lstCheckBox");
        EXPECT_TRUE(list->isVisible());
        EXPECT_EQ(list->count(), 6);
        EXPECT_EQ(list->width(), row.width / 15);
    }
}

TEST(QuestionPreview, SaysThatATypeIsWrong)
{
    const PromptScript prompts({u"OK"_s, u"OK"_s});
    const Questions questions(1, 0, u"text"_s);
    ASSERT_EQ(prompts.boxes().size(), 2u) << "when the step is entered, and at the click";
    EXPECT_EQ(prompts.boxes()[0].text, u"This type is wrong!"_s);
    EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Critical);
    EXPECT_EQ(questions.Caption("lblTitle"), QString());
    EXPECT_EQ(questions.Caption("lblq_num"), u"1 of 1"_s);
}

} // namespace
