#include "ui/questions/wizard_desk.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

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

} // namespace
