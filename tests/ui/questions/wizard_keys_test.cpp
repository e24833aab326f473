#include "ui/questions/item_prompts.h"
#include "ui/questions/wizard_desk.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

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

TEST(WizardTexts, OfOneLineTakePastedLinesAsOne)
{
    WizardDesk desk;
    desk.Open();
    desk.Choose(u"Text"_s);
    desk.Press(next);
    QGuiApplication::clipboard()->setText(u"two\nlines\n"_s);
    Type(desk, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(desk.Title()->currentText(), u"two lines"_s);
    desk.Press(next);
    Type(desk, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(desk.Column()->text(), u"two lines"_s);
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
