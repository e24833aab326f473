#include "ui/questions/wizard_desk.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString another = u"You have successfully created a question.\r\n"
                        "Would you like to create another one?"_s;
const QString anItem = u"Please add an item to the List."_s;

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

TEST(WizardFinish, RemembersTheTenLatestTitles)
{
    WizardDesk desk;
    desk.Open();
    EXPECT_EQ(desk.Offered(), QStringList{u""_s});
    QStringList titles;
    for (int i = 1; i <= 11; ++i) {
        const PromptScript prompts({u"Yes"_s});
        titles += u"T%1"_s.arg(i);
        desk.Make(titles.last());
        EXPECT_EQ(prompts.texts(), QStringList{another});
    }
    EXPECT_EQ(desk.document.project().TitleList, titles.sliced(1));
    EXPECT_EQ(desk.Offered(), QStringList{u""_s} + titles) << "the open drop-down grows on";
    {
        const PromptScript prompts({u"Yes"_s});
        desk.Make(u"T5"_s);
        EXPECT_EQ(prompts.texts(), QStringList{another});
        EXPECT_EQ(desk.document.project().TitleList, titles.sliced(1));
    }
    desk.Open();
    EXPECT_EQ(desk.Offered(), titles.sliced(1));
    EXPECT_EQ(desk.Title()->currentText(), u""_s) << "none is chosen";
}

TEST(WizardFinish, TakesATitleFromTheDropDown)
{
    WizardDesk desk;
    desk.document.SetTitleList({u""_s, u"Bird"_s});
    desk.Open();
    desk.Choose(u"Text"_s);
    desk.Press(next);
    QTest::keyClick(desk.Title(), Qt::Key_Down);
    QTest::keyClick(desk.Title(), Qt::Key_Down);
    EXPECT_EQ(desk.Title()->currentText(), u"Bird"_s);
    desk.Press(next);
    desk.Press(next);
    QTest::keyClicks(desk.Question(), u"Which?"_s);
    const PromptScript prompts({u"No"_s});
    desk.Press(finish);
    EXPECT_EQ(prompts.texts(), QStringList{another});
    EXPECT_EQ(desk.document.source().Questions().Current().Title, u"Bird"_s);
    EXPECT_EQ(desk.document.project().TitleList, (QStringList{u""_s, u"Bird"_s}));
}

TEST(WizardFinish, TakesATitleAsItWasTyped)
{
    WizardDesk desk;
    desk.document.SetTitleList({u"Bird"_s, u"birdhouse"_s});
    desk.Open();
    desk.Choose(u"Text"_s);
    desk.Press(next);
    QTest::keyClicks(desk.Title(), u"bird"_s);
    EXPECT_EQ(desk.Title()->currentText(), u"bird"_s) << "not completed";
    QTest::keyClick(desk.Title(), Qt::Key_Return);
    EXPECT_EQ(desk.Step(), 3);
    EXPECT_EQ(desk.Title()->currentText(), u"bird"_s) << "not the one in another case";
    EXPECT_EQ(desk.Title()->count(), 2) << "not offered before the question is finished";
}

TEST(WizardFinish, WritesNothingWhenTheUserGivesUp)
{
    const struct {
        const char *what;
        void (*leave)(const WizardDesk &, frmWizard &);
    } rows[] = {
        {"Cancel", [](const WizardDesk &desk, frmWizard &) { desk.Press(cancel); }},
        {"Escape", [](const WizardDesk &desk,
                      frmWizard &) { QTest::keyClick(desk.Items()->List(), Qt::Key_Escape); }},
        {"the title bar", [](const WizardDesk &, frmWizard &wizard) { wizard.close(); }},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        WizardDesk desk;
        frmWizard &wizard = desk.Open();
        const PromptScript prompts;
        desk.GoToItems(u"Checkboxes"_s);
        desk.Items()->SetItems({u"Red"_s});
        row.leave(desk, wizard);
        EXPECT_FALSE(desk.IsOpen());
        EXPECT_TRUE(prompts.boxes().empty());
        EXPECT_EQ(desk.document.source().QuestionCount(), 0);
        EXPECT_EQ(desk.document.source().Items().Count(), 0);
        EXPECT_EQ(desk.document.source().MaxId(), 1);
        EXPECT_EQ(desk.document.project().TitleList, QStringList{u""_s});
        EXPECT_FALSE(desk.document.ProjectChanged());
    }
}

/// Whatever has the focus takes the key.
void Type(const WizardDesk &desk, Qt::Key key, Qt::KeyboardModifiers held = {})
{
    ASSERT_NE(desk.Focus(), nullptr);
    QTest::keyClick(desk.Focus(), key, held);
}

void Type(const WizardDesk &desk, const QString &text)
{
    ASSERT_NE(desk.Focus(), nullptr);
    QTest::keyClicks(desk.Focus(), text);
}

TEST(WizardFinish, IsReachedByKeysAlone)
{
    WizardDesk desk;
    desk.Open();
    const PromptScript prompts({u"Red"_s, u"Blue"_s, u"No"_s});
    Type(desk, Qt::Key_End);
    Type(desk, Qt::Key_Return);
    ASSERT_EQ(desk.Step(), 2);
    Type(desk, u"Colours"_s);
    Type(desk, Qt::Key_N, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return desk.Step() == 3; })) << "the button goes down first";
    Type(desk, u"colours"_s);
    Type(desk, Qt::Key_Return);
    ASSERT_EQ(desk.Step(), 4);
    Type(desk, u"Which ones?"_s);
    Type(desk, Qt::Key_Tab);
    EXPECT_EQ(desk.Focused(), u"cmdNav_1"_s);
    Type(desk, Qt::Key_Tab);
    Type(desk, Qt::Key_Tab);
    EXPECT_EQ(desk.Focused(), u"cmdNav_3"_s);
    Type(desk, Qt::Key_Space);
    ASSERT_EQ(desk.Step(), 5);
    for (int added = 1; added <= 2; ++added) {
        if (added == 1)
            Type(desk, Qt::Key_Tab);
        EXPECT_EQ(desk.Focused(), u"cmdWiz4_Add"_s);
        Type(desk, Qt::Key_Space);
    }
    EXPECT_EQ(desk.Items()->Items(), (QStringList{u"Red"_s, u"Blue"_s}));
    Type(desk, Qt::Key_F, Qt::AltModifier);

    EXPECT_TRUE(QTest::qWaitFor([&] { return !desk.IsOpen(); }));
    EXPECT_EQ(prompts.questions(), QStringList(2, anItem));
    EXPECT_EQ(prompts.texts(), QStringList{another});
    ASSERT_EQ(desk.document.source().QuestionCount(), 1);
    const QuestionRow &row = desk.document.source().Questions().Current();
    EXPECT_EQ(row.Type, u"Checkboxes"_s);
    EXPECT_EQ(row.Title, u"Colours"_s);
    EXPECT_EQ(row.ColumnName, u"colours"_s);
    EXPECT_EQ(row.Question, u"Which ones?"_s);
    EXPECT_EQ(desk.document.source().Items().Count(), 2);
}

TEST(WizardFinish, IsReachedByEnterWhereNextIsNot)
{
    WizardDesk desk;
    desk.Open();
    desk.GoToItems(u"Checkboxes"_s);
    desk.Items()->SetItems({u"Red"_s});
    const PromptScript prompts({u"No"_s});
    Type(desk, Qt::Key_Return);
    EXPECT_EQ(prompts.texts(), QStringList{another});
    EXPECT_FALSE(desk.IsOpen());
    EXPECT_EQ(desk.document.source().QuestionCount(), 1);
}

} // namespace
