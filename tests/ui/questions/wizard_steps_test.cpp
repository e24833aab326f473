#include "model/question_types.h"
#include "ui/common/link_label.h"
#include "ui/questions/wizard_desk.h"

#include <QScreen>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString caption = u"Vellumo Designer Question Wizard- Step "_s;

TEST(WizardSteps, ShowWhatBelongsToThem)
{
    WizardDesk desk;
    desk.Open();
    const struct {
        const char *panel, *input;
        QString enabled;
        Nav byEnter;
    } rows[] = {
        {"PictWizard1", "lstWiz1_1", u"-N-"_s, next},
        {"PictWizard2", "cboWiz2_1", u"BN-"_s, next},
        {"PictWizard5", "txtWiz5_1", u"BN-"_s, next},
        {"PictWizard3", "txtWiz3_1", u"BN-"_s, next},
        {"PictWizard4", "lstWiz4_1", u"B-F"_s, finish},
    };
    desk.Choose(u"Checkboxes"_s);
    int step = 0;
    for (const auto &row : rows) {
        SCOPED_TRACE(row.panel);
        ++step;
        EXPECT_EQ(desk.Caption(), caption + QString::number(step));
        for (const auto &other : rows)
            EXPECT_EQ(desk.Find(QLatin1StringView(other.panel))->isVisible(),
                      other.panel == row.panel);
        EXPECT_EQ(desk.Focused(), QLatin1StringView(row.input));
        EXPECT_EQ(desk.Enabled(), row.enabled);
        EXPECT_TRUE(desk.Button(row.byEnter)->isDefault());
        if (step == 4)
            desk.Question()->setPlainText(u"Which?"_s);
        if (step < 5)
            desk.Press(next);
    }
    while (step > 1) {
        desk.Press(back);
        --step;
        EXPECT_EQ(desk.Caption(), caption + QString::number(step));
        EXPECT_EQ(desk.Focused(), QLatin1StringView(rows[step - 1].input));
        EXPECT_EQ(desk.Enabled(), rows[step - 1].enabled);
        EXPECT_TRUE(desk.Button(rows[step - 1].byEnter)->isDefault());
    }
}

TEST(WizardSteps, EndWithTheQuestionForTypesWithoutItems)
{
    for (const auto &[id, type, kind, data, items] : questionTypes) {
        SCOPED_TRACE(type.data());
        WizardDesk desk;
        desk.Open();
        desk.GoToQuestion(type);
        EXPECT_EQ(desk.Enabled(), HasItems(QString(type)) ? u"BN-"_s : u"B-F"_s);
        EXPECT_TRUE(desk.Button(HasItems(QString(type)) ? next : finish)->isDefault());
    }
}

TEST(WizardSteps, SayWhatIsAskedFor)
{
    WizardDesk desk;
    desk.Open();
    const struct {
        const char *name, *text;
    } rows[] = {
        {"lblWiz1_1", "You will first need to choose the question type."},
        {"lblWiz1_2", "What type of question would you like to add?"},
        {"lblLkWzType", "type of question"},
        {"lblWiz2_1", "Each question on the Vellsheet can be presented with a"},
        {"lblLkWzTitle", "title."},
        {"lblWiz2_2", "Please select or enter a question title (optional):"},
        {"Label5", "Please enter a"},
        {"lblLkWzColumn", "unique data column name."},
        {"lblWiz5_1", "The collected data for this question will be saved into a data column when "
                      "synchronized to your CSV file on your PC."},
        {"lblWiz3_1", "You can now specify the question itself. "},
        {"lblWiz3_2", "Please enter the"},
        {"lblLkWzText", "question text:"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(desk.Find<QLabel>(QLatin1StringView(row.name))->text(),
                  QLatin1StringView(row.text));

    const QString captions[] = {u"Help"_s, u"Cancel"_s, u"< &Back"_s, u"&Next >"_s, u"&Finish"_s};
    for (const Nav nav : {help, cancel, back, next, finish})
        EXPECT_EQ(desk.Button(nav)->text(), captions[nav]);
    EXPECT_FALSE(desk.Button(help)->isVisible());

    ASSERT_EQ(desk.Types()->count(), 10);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(desk.Types()->item(i)->text(), questionTypes[static_cast<size_t>(i)].name);
}

TEST(WizardSteps, SpeakOfListsAndOfCheckboxes)
{
    const struct {
        QString type, text;
        bool places;
    } rows[] = {
        {u"Pulldown List"_s,
         u"A pulldown list is made up of a collection of text items a user can select from in the Vellsheet."_s,
         true},
        {u"Checkboxes"_s,
         u"A set of checkboxes allows the user to mark off multiple checkboxes as an answer to your question."_s,
         false},
    };
    for (const auto &row : rows) {
        WizardDesk desk;
        desk.Open();
        desk.GoToItems(row.type);
        EXPECT_EQ(desk.Find<QLabel>(u"lblWiz4_1"_s)->text(), row.text);
        EXPECT_EQ(desk.Find(u"cmd_AddState"_s)->isVisible(), row.places);
        EXPECT_EQ(desk.Find(u"cmd_AddCountry"_s)->isVisible(), row.places);
        for (const QString &name : {u"cmd_Clear"_s, u"cmd_sort"_s, u"cmdWiz4_Add"_s,
                                    u"cmdWiz4_Remove"_s, u"cmdWiz4_Up"_s, u"cmdWiz4_Down"_s})
            EXPECT_TRUE(desk.Find(name)->isVisible()) << name.toStdString();
    }
}

TEST(WizardSteps, ProposeASelectedColumnNameWhereThereIsNone)
{
    for (const int questions : {0, 3}) {
        WizardDesk desk(questions);
        desk.Open();
        desk.Choose(u"Text"_s);
        desk.Press(next);
        desk.Press(next);
        const QString proposed = u"Question_%1"_s.arg(questions + 1);
        EXPECT_EQ(desk.Column()->text(), proposed);
        EXPECT_EQ(desk.Column()->selectedText(), proposed);
    }
    WizardDesk desk;
    desk.Open();
    desk.Choose(u"Text"_s);
    desk.Press(next);
    desk.Press(next);
    QTest::keyClicks(desk.Column(), u"weight"_s);
    desk.Press(back);
    desk.Press(next);
    EXPECT_EQ(desk.Column()->text(), u"weight"_s) << "replaced what was selected, and stays";
    desk.Column()->setText(u"   "_s);
    desk.Press(back);
    desk.Press(next);
    EXPECT_EQ(desk.Column()->selectedText(), u"Question_1"_s) << "blanks are no name";
}

TEST(WizardSteps, LeadToTheHelp)
{
    WizardDesk desk;
    const frmWizard &wizard = desk.Open();
    QSignalSpy asked(&wizard, &frmWizard::HelpAsked);
    for (const QString &name :
         {u"lblLkWzType"_s, u"lblLkWzTitle"_s, u"lblLkWzColumn"_s, u"lblLkWzText"_s})
        QTest::mouseClick(desk.Find<LinkLabel>(name), Qt::LeftButton);
    EXPECT_EQ(asked, (QList<QVariantList>(4, {15})));
}

TEST(WizardSteps, ShowTheLinkOverItsWords)
{
    WizardDesk desk;
    frmWizard &wizard = desk.Open();
    const auto *label = desk.Find<QLabel>(u"lblWiz1_2"_s);
    const auto *link = desk.Find<LinkLabel>(u"lblLkWzType"_s);
    for (const int points : {9, 20}) {
        QFont font = wizard.font();
        font.setPointSize(points);
        wizard.setFont(font);
        QCoreApplication::processEvents();
        const int left = label->fontMetrics().horizontalAdvance(u"What "_s);
        EXPECT_EQ(link->mapTo(label, QPoint()).x(), left);
        EXPECT_NEAR(link->width(), label->fontMetrics().horizontalAdvance(u"type of question"_s),
                    2);
    }
}

TEST(WizardSteps, GoOnByDoubleClickOnAType)
{
    WizardDesk desk;
    desk.Open();
    const QPoint checkboxes = desk.Types()->visualItemRect(desk.Types()->item(9)).center();
    QTest::mouseClick(desk.Types()->viewport(), Qt::LeftButton, {}, checkboxes);
    QTest::mouseDClick(desk.Types()->viewport(), Qt::LeftButton, {}, checkboxes);
    EXPECT_EQ(desk.Step(), 2);
}

TEST(WizardSteps, StandInTheMiddleOfTheScreenAboveOtherWindows)
{
    WizardDesk desk;
    const frmWizard &wizard = desk.Open();
    EXPECT_TRUE(wizard.isModal());
    const QPoint off = wizard.geometry().center() - wizard.screen()->availableGeometry().center();
    EXPECT_LE(off.manhattanLength(), 4);
}

TEST(WizardSteps, NameWhatTheyAskFor)
{
    WizardDesk desk;
    desk.Open();
    const struct {
        const char *label, *input;
    } rows[] = {{"lblWiz1_2", "lstWiz1_1"},
                {"lblWiz2_2", "cboWiz2_1"},
                {"Label5", "txtWiz5_1"},
                {"lblWiz3_2", "txtWiz3_1"},
                {"lblWiz4_1", "lstWiz4_1"}};
    for (const auto &row : rows) {
        QWidget *input = desk.Find(QLatin1StringView(row.input));
        EXPECT_EQ(desk.Find<QLabel>(QLatin1StringView(row.label))->buddy(), input);
        EXPECT_FALSE(input->accessibleName().isEmpty()) << row.input;
    }
}

} // namespace
