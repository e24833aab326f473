#include "ui/questions/wizard_desk.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

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

TEST(WizardFinish, IsOneStepWithTheTitle)
{
    WizardDesk desk;
    desk.Open();
    const PromptScript prompts({u"No"_s});
    desk.Make(u"Bird"_s);
    EXPECT_EQ(prompts.texts(), QStringList{another});
    EXPECT_EQ(desk.document.source().QuestionCount(), 1);
    desk.document.Undo();
    EXPECT_EQ(desk.document.source().QuestionCount(), 0);
    EXPECT_EQ(desk.document.source().MaxId(), 1);
    EXPECT_EQ(desk.document.project().TitleList, QStringList{u""_s});
}

TEST(WizardFinish, TakesATitleFromTheDropDown)
{
    WizardDesk desk;
    desk.document.Replace({.TitleList = {u""_s, u"Bird"_s}}, {});
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
    desk.document.Replace({.TitleList = {u"Bird"_s, u"birdhouse"_s}}, {});
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

} // namespace
