#include "help/help_topics.h"
#include "ui/main/questions_fixture.h"
#include "ui/questions/frmWizard.h"
#include "ui/questions/propertyForm.h"

#include <QComboBox>
#include <QInputDialog>
#include <QListWidget>
#include <QSignalSpy>
#include <QTabBar>
#include <QTimer>
#include <QWheelEvent>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

void Press(Qt::Key key, Qt::KeyboardModifiers held = {})
{
    QTest::keyClick(QApplication::focusWidget(), key, held);
}

/// Uses the dialog that opens next, and closes it.
template <typename Dialog> void InDialog(const std::function<void(Dialog &)> &use)
{
    QTimer::singleShot(0, qApp, [use] {
        auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        QApplication::setActiveWindow(dialog);
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        use(*dialog);
        dialog->reject();
    });
}

TEST(DeskKeys, WalkTheStepsFromAnywhere)
{
    const Questions designer(2);
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers held;
        int way;
    } walks[] = {{Qt::Key_Tab, Qt::ControlModifier, 1},
                 {Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier, -1},
                 {Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier, -1},
                 {Qt::Key_PageDown, Qt::ControlModifier, 1},
                 {Qt::Key_PageUp, Qt::ControlModifier, -1}};
    const std::pair<int, const char *> places[] = {
        {1, "txtAppName"}, {1, "txtAppDesc"},   {1, "cmdToolbar_0"}, {1, "lblLinkName"},
        {2, "DataGrid1"},  {2, "cmdAdd"},       {3, "txt3_appDir"},  {3, "cmdBrowse"},
        {4, "lstError"},   {4, "cmdReviewForm"}};
    for (const auto &walk : walks)
        for (const auto &[step, place] : places) {
            designer.ClickTab(step);
            designer.Find<QWidget>(place)->setFocus();
            ASSERT_TRUE(designer.HasFocus(place)) << place;
            Press(walk.key, walk.held);
            EXPECT_EQ(designer.Step(), (step - 1 + walk.way + 4) % 4 + 1) << place;
        }
    designer.ClickTab(1);
    Press(Qt::Key_A); // a name that passes
    Press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(designer.Mark(1), StepMarkValid) << "as by a click";
}

TEST(DeskKeys, FindTheFocusWhereAStepIsUsed)
{
    const Questions designer(2);
    EXPECT_TRUE(designer.HasFocus("DataGrid1"));
    designer.ClickTab(4);
    EXPECT_TRUE(designer.HasFocus("cmdReviewForm"));
    designer.ClickTab(2);
    EXPECT_TRUE(designer.HasFocus("DataGrid1"));
}

TEST(DeskKeys, WorkOnQuestionsFromAnywhereOnStepTwo)
{
    for (const char *place : {"DataGrid1", "cmdDown", "lblAdd", "cmd2_Next", "cmdToolbar_1"}) {
        SCOPED_TRACE(place);
        const Questions designer(3, 1);
        const PromptScript prompts({u"Yes"_s, u"Yes"_s});
        designer.Find<QWidget>(place)->setFocus();
        ASSERT_TRUE(designer.HasFocus(place));
        Press(Qt::Key_D, Qt::ControlModifier);
        EXPECT_EQ(designer.ColumnNames().back(), u"q2(1)"_s);
        designer.Activate();
        designer.Find<QWidget>(place)->setFocus();
        Press(Qt::Key_Up, Qt::AltModifier);
        EXPECT_EQ(designer.ColumnNames().front(), u"q2"_s);
        Press(Qt::Key_Delete);
        EXPECT_EQ(designer.ColumnNames(), (QStringList{u"q1"_s, u"q3"_s, u"q2(1)"_s}));
        EXPECT_EQ(prompts.texts(), (QStringList{reallyDuplicate, reallyDelete}));
        designer.Activate();
        bool opened = false;
        InDialog<frmWizard>([&](frmWizard &) { opened = true; });
        Press(Qt::Key_Insert);
        EXPECT_TRUE(opened);
    }
}

TEST(DeskKeys, LetEnterPressTheButtonThatHasTheFocus)
{
    const Questions designer(3, 1);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        designer.Find<QWidget>("cmdUp")->setFocus();
        Press(key);
        designer.Find<QWidget>("cmdDown")->setFocus();
        EXPECT_EQ(designer.ColumnNames(), (QStringList{u"q2"_s, u"q1"_s, u"q3"_s}));
        Press(key);
        EXPECT_EQ(designer.ColumnNames(), (QStringList{u"q1"_s, u"q2"_s, u"q3"_s}));
    }
    designer.Find<QWidget>("cmd2_Next")->setFocus();
    Press(Qt::Key_Return);
    EXPECT_EQ(designer.Step(), 3);
    designer.ClickTab(2);
    bool opened = false;
    InDialog<propertyForm>([&](propertyForm &) { opened = true; });
    Press(Qt::Key_Return);
    EXPECT_TRUE(opened) << "in the list it edits";
}

TEST(DeskKeys, OpenTheHelpThatFits)
{
    const Questions designer(1);
    QSignalSpy asked(&designer.window, &appInfoForm::HelpAsked);
    for (int step = 1; step <= 4; ++step) {
        designer.ClickTab(step);
        Press(Qt::Key_F1);
    }
    designer.ClickTab(2);
    InDialog<propertyForm>([](propertyForm &) { Press(Qt::Key_F1); });
    Press(Qt::Key_Return);
    designer.Activate();
    InDialog<QMessageBox>([](QMessageBox &) { Press(Qt::Key_F1); }); // that asks to delete
    Press(Qt::Key_Delete);
    designer.Activate();
    InDialog<frmWizard>([](frmWizard &wizard) {
        Press(Qt::Key_F1);
        wizard.findChild<QListWidget *>(u"lstWiz1_1"_s)->setCurrentRow(9);
        for (const QString &text : {u""_s, u""_s, u""_s, u"Which?"_s}) {
            QTest::keyClicks(QApplication::focusWidget(), text);
            QTest::mouseClick(wizard.findChild<QWidget *>(u"cmdNav_3"_s), Qt::LeftButton);
            Press(Qt::Key_F1);
        }
        InDialog<QInputDialog>([](QInputDialog &) { Press(Qt::Key_F1); });
        Press(Qt::Key_Insert);
    });
    Press(Qt::Key_Insert);
    QList<quint32> pages;
    for (const QList<QVariant> &one : asked)
        pages += one[0].toUInt();
    using namespace HelpContext;
    EXPECT_EQ(pages,
              (QList<quint32>{formInformation, questions, uploadingData, finalReview,
                              questionProperties, questions, HelpContext::questionTypes,
                              questionWizard, questionWizard, questionWizard, items, items}));
}

TEST(DeskKeys, WithAltNeverBecomeText)
{
    const Questions designer(1);
    designer.ClickTab(1);
    for (const char *name : {"txtAppName", "txtAppVersion", "txtAppDesc"}) {
        designer.Find<QWidget>(name)->setFocus();
        Press(Qt::Key_Z, Qt::AltModifier);
        Press(Qt::Key_Z, Qt::AltModifier | Qt::ShiftModifier);
    }
    EXPECT_EQ(designer.project().FormName, u"Survey"_s);
    EXPECT_EQ(designer.project().FormVersion, QString());
    EXPECT_EQ(designer.project().Description, QString());
    Press(Qt::Key_Z);
    EXPECT_EQ(designer.project().Description, u"z"_s);

    designer.ClickTab(2);
    InDialog<frmWizard>([](frmWizard &wizard) {
        wizard.findChild<QListWidget *>(u"lstWiz1_1"_s)->setCurrentRow(0);
        QTest::mouseClick(wizard.findChild<QWidget *>(u"cmdNav_3"_s), Qt::LeftButton);
        Press(Qt::Key_Z, Qt::AltModifier);
        Press(Qt::Key_Y);
        EXPECT_EQ(wizard.findChild<QComboBox *>(u"cboWiz2_1"_s)->currentText(), u"y"_s);
    });
    Press(Qt::Key_Insert);
}

TEST(MouseWheel, ChangesADropDownOnlyWhileItHasTheFocus)
{
    const Questions designer(1);
    InDialog<propertyForm>([](propertyForm &form) {
        auto *types = form.findChild<QComboBox *>(u"cboType"_s);
        EXPECT_FALSE(types->focusPolicy() & Qt::WheelFocus & ~Qt::StrongFocus);
        const auto turn = [types] {
            QWheelEvent wheel(QPointF(5, 5), types->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {},
                              {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(types, &wheel);
        };
        turn();
        EXPECT_EQ(types->currentText(), u"Text"_s);
        types->setFocus();
        turn();
        EXPECT_EQ(types->currentText(), u"Numeric"_s);
    });
    Press(Qt::Key_Return);
}

} // namespace
