#include "ui/questions/item_prompts.h"
#include "ui/questions/wizard_desk.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(WizardFinish, WritesTheQuestionAndAsksForAnother)
{
    WizardDesk desk(2);
    desk.document.source().SetMaxId(7);
    desk.Open();
    QSignalSpy changed(&desk.document, &ProjectDocument::QuestionsChanged);
    const PromptScript prompts({u"No"_s});
    desk.GoToQuestion(u"Text"_s, u" Bird "_s);
    QTest::keyClicks(desk.Question(), u"  Which? "_s);
    EXPECT_FALSE(desk.document.ProjectChanged());
    EXPECT_EQ(desk.document.source().QuestionCount(), 2);
    desk.Press(finish);

    ASSERT_EQ(prompts.boxes().size(), 1u);
    EXPECT_EQ(prompts.boxes()[0].text, another);
    EXPECT_EQ(prompts.boxes()[0].title, u"Vellumo Designer"_s);
    EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Question);
    EXPECT_EQ(prompts.boxes()[0].defaultButton, u"No"_s);
    EXPECT_FALSE(desk.IsOpen());
    ASSERT_EQ(desk.document.source().QuestionCount(), 3);
    const QuestionRow &row = desk.document.source().Questions().Rows()[2];
    EXPECT_EQ(row.Order, 3);
    EXPECT_EQ(row.Type, u"Text"_s);
    EXPECT_EQ(row.Title, u" Bird "_s);
    EXPECT_EQ(row.ColumnName, u"Question_3"_s);
    EXPECT_EQ(row.Question, u"Which?"_s);
    EXPECT_EQ(row.Id, 7);
    EXPECT_EQ(desk.document.source().MaxId(), 8);
    EXPECT_TRUE(desk.document.ProjectChanged());
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(desk.document.project().TitleList, (QStringList{u""_s, u" Bird "_s}));
}

TEST(WizardFinish, KeepsOnlyTheTypeForAnotherQuestion)
{
    WizardDesk desk;
    desk.Open();
    const PromptScript prompts({u"Red"_s, u"Yes"_s, u"Blue"_s, u""_s});
    desk.GoToItems(u"Pulldown List"_s);
    QTest::mouseClick(desk.Find<QPushButton>(u"cmdWiz4_Add"_s), Qt::LeftButton);
    desk.Press(finish);

    EXPECT_TRUE(desk.IsOpen());
    EXPECT_EQ(desk.Step(), 1);
    EXPECT_EQ(desk.Enabled(), u"-N-"_s);
    ASSERT_EQ(desk.Types()->selectedItems().size(), 1);
    EXPECT_EQ(desk.Types()->selectedItems()[0]->text(), u"Pulldown List"_s);
    EXPECT_EQ(desk.Title()->currentText(), u""_s);
    EXPECT_EQ(desk.Column()->text(), u""_s);
    EXPECT_EQ(TextOf(*desk.Question()), u""_s);
    EXPECT_EQ(desk.Items()->Items(), QStringList());

    desk.Press(next);
    desk.Press(next);
    EXPECT_EQ(desk.Column()->text(), u"Question_2"_s);
    desk.Press(next);
    QTest::keyClicks(desk.Question(), u"And?"_s);
    desk.Press(next);
    QTest::mouseClick(desk.Find<QPushButton>(u"cmdWiz4_Add"_s), Qt::LeftButton);
    desk.Press(finish);
    EXPECT_FALSE(desk.IsOpen()) << "the question was closed by its title bar";
    EXPECT_EQ(prompts.questions(), QStringList(2, anItem));
    EXPECT_EQ(prompts.texts(), QStringList(2, another));

    const auto &items = desk.document.source().Items().Rows();
    ASSERT_EQ(items.size(), 2u);
    EXPECT_EQ(items[0].Id, 1);
    EXPECT_EQ(items[0].Item, u"Red"_s);
    EXPECT_EQ(items[1].Id, 2);
    EXPECT_EQ(items[1].Item, u"Blue"_s);
}

TEST(WizardFinish, WritesNoItemsOfATypeThatHasNone)
{
    WizardDesk desk;
    desk.Open();
    desk.GoToItems(u"Checkboxes"_s);
    desk.Items()->SetItems({u"Red"_s});
    for (int step = 5; step > 1; --step)
        desk.Press(back);
    desk.Choose(u"Notes"_s);
    for (int step = 1; step < 4; ++step)
        desk.Press(next);
    const PromptScript prompts({u"No"_s});
    desk.Press(finish);
    EXPECT_EQ(prompts.texts(), QStringList{another});
    EXPECT_EQ(desk.document.source().Questions().Current().Type, u"Notes"_s);
    EXPECT_EQ(desk.document.source().Items().Count(), 0);
}

TEST(WizardFinish, StopsAt128)
{
    const QString full = u"You have successfully created a question.\r\n"
                         "The maximum number of questions is 128.\r\n"
                         "You can't create more questions."_s;
    const struct {
        int before;
        QString message;
    } rows[] = {{126, another}, {127, full}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.before);
        WizardDesk desk(row.before);
        desk.Open();
        const PromptScript prompts({row.before == 126 ? u"No"_s : u"OK"_s});
        desk.Make(u"Bird"_s);
        ASSERT_EQ(prompts.boxes().size(), 1u);
        EXPECT_EQ(prompts.boxes()[0].text, row.message);
        EXPECT_EQ(prompts.boxes()[0].icon,
                  row.before == 126 ? QMessageBox::Question : QMessageBox::Warning);
        EXPECT_FALSE(desk.IsOpen());
        EXPECT_EQ(desk.document.source().QuestionCount(), row.before + 1);
        EXPECT_TRUE(desk.document.project().TitleList.contains(u"Bird"_s));
    }
}

} // namespace
