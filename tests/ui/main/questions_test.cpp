#include "ui/main/questions_fixture.h"

#include <QTimer>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(Questions, HaveButtonsWithToolTips)
{
    const Questions questions(0);
    const std::pair<const char *, QString> rows[] = {
        {"cmdAdd", u"Add New Question"_s},    {"cmdView", u"Edit Question"_s},
        {"cmdDel", u"Delete Question"_s},     {"cmdUp", u"Move Question Up"_s},
        {"cmdDown", u"Move Question Down"_s}, {"cmdDuplic", u"Duplicate Question"_s},
    };
    for (const auto &[name, toolTip] : rows)
        EXPECT_EQ(questions.Find<QWidget>(name)->toolTip(), toolTip);
}

TEST(Questions, RefuseToWorkOnNone)
{
    const Questions questions(0);
    for (const char *button : {"cmdView", "cmdDel", "cmdUp", "cmdDown", "cmdDuplic"}) {
        SCOPED_TRACE(button);
        const PromptScript prompts({u"OK"_s});
        questions.Click(button);
        ASSERT_EQ(prompts.boxes().size(), 1u);
        EXPECT_EQ(prompts.boxes()[0].text, u"Please select a question."_s);
        EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Warning);
    }
    EXPECT_FALSE(questions.ProjectChanged());
}

TEST(Questions, AreAtMost128)
{
    const Questions questions(128, 0);
    for (const char *button : {"cmdAdd", "cmdDuplic"}) {
        const PromptScript prompts({u"OK"_s});
        questions.Click(button);
        ASSERT_EQ(prompts.boxes().size(), 1u);
        EXPECT_EQ(prompts.boxes()[0].text, u"The maximum number of questions is 128."_s);
    }
}

TEST(QuestionKeys, DoWhatTheButtonsDo)
{
    const Questions questions(3, 1);
    questions.Grid()->setFocus();
    QTest::keyClick(questions.Grid(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(questions.ColumnNames(), (QStringList{u"q2"_s, u"q1"_s, u"q3"_s}));
    QTest::keyClick(questions.Grid(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(questions.ColumnNames(), (QStringList{u"q1"_s, u"q2"_s, u"q3"_s}));

    const PromptScript prompts({u"Yes"_s});
    QTest::keyClick(questions.Grid(), Qt::Key_Delete);
    EXPECT_EQ(questions.ColumnNames(), (QStringList{u"q1"_s, u"q3"_s}));
    EXPECT_EQ(prompts.texts(), QStringList{reallyDelete});
}

TEST(QuestionWizard, PassesItsHelpLinksOn)
{
    const Questions questions(1, 0);
    QList<int> asked;
    QObject::connect(&questions.window, &appInfoForm::HelpAsked, [&](int id) { asked += id; });
    QTimer::singleShot(0, [] {
        auto *wizard = QApplication::activeModalWidget();
        ASSERT_TRUE(wizard);
        QTest::mouseClick(wizard->findChild<QLabel *>(u"lblLkWzType"_s), Qt::LeftButton);
        QTest::keyClick(wizard, Qt::Key_Escape);
    });
    questions.Click("cmdAdd");
    EXPECT_EQ(asked, QList{15});
}

TEST(QuestionProperties, ChangeTheCurrentQuestionAndItsPreview)
{
    const Questions questions(2, 1);
    QTimer::singleShot(0, [] {
        auto *properties = QApplication::activeModalWidget();
        ASSERT_TRUE(properties);
        auto *title = properties->findChild<QLineEdit *>(u"txtTitle"_s);
        title->selectAll();
        QTest::keyClicks(title, u"Changed"_s);
        QTest::mouseClick(properties->findChild<QAbstractButton *>(u"cmdOK"_s), Qt::LeftButton);
    });
    questions.Click("cmdView");
    EXPECT_EQ(questions.Caption("lblTitle"), u"Changed"_s);
    EXPECT_EQ(questions.Grid()->model()->index(1, 1).data().toString(), u"Changed"_s);
    EXPECT_EQ(questions.Row(), 1);
    EXPECT_TRUE(questions.ProjectChanged());
}

} // namespace
