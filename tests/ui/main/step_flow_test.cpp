#include "support/print.h"
#include "ui/support/designer.h"
#include "ui/support/prompt_script.h"

#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QScrollArea>
#include <QTableView>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(StepFlow, StartsOnStepOneWithNothingDone)
{
    const Designer designer;
    EXPECT_EQ(designer.window.windowTitle(), u"Vellumo Designer"_s);
    EXPECT_EQ(designer.Step(), 1);
    EXPECT_TRUE(designer.HasFocus("txtAppName"));
    EXPECT_FALSE(designer.ProjectChanged());
    for (int step = 1; step <= 4; ++step)
        EXPECT_EQ(designer.Mark(step), StepMarkInvalid);
    EXPECT_FALSE(designer.Find<QWidget>("cmd1_Back")->isEnabled());
    EXPECT_FALSE(designer.Find<QWidget>("cmd4_next")->isEnabled());
}

TEST(StepFlow, HasTheCaptionsOfTheSteps)
{
    const Designer designer;
    const auto *tabs = designer.Find<QTabWidget>("SSTab1");
    const QString captions[] = {u"1:  Vellsheet Info"_s, u"2: Vellsheet Questions"_s,
                                u"3: Vellsheet Data"_s, u"4: Complete Vellsheet"_s};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(tabs->tabText(i), captions[i]);
}

TEST(StepFlow, HasTheCommandsOfTheMenusInOrder)
{
    const Designer designer;
    const struct {
        const char *menu;
        QString title;
        QStringList names, captions;
    } rows[] = {
        {"mnuFile",
         u"&File"_s,
         {u"mnuFileNew"_s, u"mnuFileOpen"_s, u"mnuFileBar1"_s, u"mnuFileSave"_s, u"mnuFileSaveAS"_s,
          u"mnuFileBar5"_s, u"mnuFileExit"_s},
         {u"&New"_s, u"&Open"_s, u""_s, u"&Save"_s, u"Save &As..."_s, u""_s, u"E&xit"_s}},
        {"mnuHelp",
         u"&Help"_s,
         {u"mnuContents"_s, u"mnuVellumo_Designer"_s},
         {u"&Contents..."_s, u"&About Vellumo Designer"_s}},
    };
    for (const auto &row : rows) {
        const auto *menu = designer.Find<QMenu>(row.menu);
        EXPECT_EQ(menu->title(), row.title);
        QStringList names, captions;
        for (const QAction *action : menu->actions()) {
            names += action->objectName();
            captions += action->text();
            EXPECT_EQ(action->isSeparator(), action->text().isEmpty());
        }
        EXPECT_EQ(names, row.names);
        EXPECT_EQ(captions, row.captions);
    }
}

TEST(StepFlow, NextOfStepOneShowsThreeLinesEvenWhereSomeAreEmpty)
{
    const Designer designer;
    designer.Type("txtAppName", u"Survey"_s);
    designer.Type("txtAppVersion", QString(33, u'1'));
    const PromptScript prompts({u"OK"_s});
    designer.Click("cmd1_Next");

    ASSERT_EQ(prompts.boxes().size(), 1u);
    const SeenBox &box = prompts.boxes()[0];
    EXPECT_EQ(box.text, u"\nPlease keep your Vellsheet Version under 32 characters in length.\n"_s);
    EXPECT_EQ(box.title, u"Vellumo Designer"_s);
    EXPECT_EQ(box.icon, QMessageBox::Warning);
    EXPECT_EQ(box.buttons, QStringList{u"OK"_s});
    EXPECT_EQ(designer.Step(), 1);
}

TEST(StepFlow, NextGoesThroughTheStepsAndBackWithoutACheck)
{
    const Designer designer(sample);
    const PromptScript prompts;
    designer.Click("cmd1_Next");
    EXPECT_EQ(designer.Step(), 2);
    designer.Click("cmd2_Next");
    EXPECT_EQ(designer.Step(), 3);
    EXPECT_TRUE(designer.HasFocus("txt3_appDir"));
    designer.Click("cmd3_Next");
    EXPECT_EQ(designer.Step(), 4);
    designer.Click("cmd4_back");
    EXPECT_EQ(designer.Step(), 3);
    designer.Find<QLineEdit>("txt3_appDir")->clear();
    designer.Click("cmd3_Back");
    EXPECT_EQ(designer.Step(), 2);
    EXPECT_EQ(designer.Mark(3), StepMarkInvalid);
    designer.Click("cmd2_Back");
    EXPECT_EQ(designer.Step(), 1);
    EXPECT_TRUE(designer.HasFocus("txtAppName"));
    EXPECT_TRUE(prompts.boxes().empty());
}

TEST(StepFlow, NextOfTheOtherStepsSaysWhatIsMissing)
{
    const struct {
        int step;
        const char *next;
        QString message;
    } rows[] = {
        {2, "cmd2_Next", u"Your Vellsheet requires a minimum of one question."_s},
        {3, "cmd3_Next", u"Please provide a default data directory path."_s},
    };
    const Designer designer;
    for (const auto &row : rows) {
        designer.ClickTab(row.step);
        const PromptScript prompts({u"OK"_s});
        designer.Click(row.next);
        ASSERT_EQ(prompts.boxes().size(), 1u);
        EXPECT_EQ(prompts.boxes()[0].text, row.message);
        EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Warning);
        EXPECT_EQ(designer.Step(), row.step);
    }
}

TEST(StepFlow, AnyTabMayBeClickedAndTheLeftStepIsMarked)
{
    const Designer designer;
    const PromptScript prompts;
    designer.ClickTab(4);
    EXPECT_EQ(designer.Step(), 4);
    EXPECT_EQ(designer.Mark(1), StepMarkInvalid);
    EXPECT_EQ(designer.Mark(4), StepMarkInvalid);
    EXPECT_FALSE(designer.Find<QWidget>("cmdCreateForm")->isEnabled());

    designer.ClickTab(1);
    designer.Type("txtAppName", u"Survey"_s);
    designer.ClickTab(3);
    EXPECT_EQ(designer.Mark(1), StepMarkValid);
    designer.Type("txt3_appDir", u"C:\\Data"_s);
    designer.ClickTab(2);
    EXPECT_EQ(designer.Mark(3), StepMarkValid);
    designer.ClickTab(1);
    EXPECT_EQ(designer.Mark(2), StepMarkInvalid) << "no question yet";
    EXPECT_TRUE(prompts.boxes().empty());
}

TEST(StepFlow, BrowsePutsTheChosenFolderIntoTheBox)
{
    const Designer designer;
    designer.ClickTab(3);
    {
        const PromptScript prompts({designer.projects});
        designer.Click("cmdBrowse");
        EXPECT_EQ(prompts.fileDialogs(), QStringList{u"Select a folder"_s});
    }
    QString expected = u"Z:"_s + designer.projects;
    expected.replace(u'/', u'\\');
    EXPECT_EQ(designer.Text("txt3_appDir"), expected);
    EXPECT_TRUE(designer.ProjectChanged());

    const PromptScript prompts({u""_s});
    designer.Click("cmdBrowse");
    EXPECT_EQ(prompts.fileDialogs(), QStringList{u"Select a folder"_s});
    EXPECT_EQ(designer.Text("txt3_appDir"), expected) << "cancelled";
}

TEST(StepFlow, KeepsThePlacesOfStepTwoInASmallWindow)
{
    Designer designer(sample);
    designer.ClickTab(2);
    const auto *content = designer.Find<QWidget>("content");
    auto &window = designer.window;

    window.resize(1000, 700);
    const QSize large = content->size();
    window.resize(790, 576);
    const QSize atTheLimit = content->size();
    EXPECT_LT(atTheLimit.width(), large.width());
    window.resize(789, 576);
    EXPECT_EQ(content->size(), atTheLimit);
    window.resize(1000, 575);
    EXPECT_EQ(content->size(), atTheLimit);
    designer.ClickTab(1);
    designer.ClickTab(2);
    EXPECT_EQ(content->size(), atTheLimit) << "a change of steps lays out a large window alone";
    window.resize(1000, 700);
    EXPECT_EQ(content->size(), large);
}

/// Shows a step while the window is small, and step 2 when it has grown.
void ExpectFilled(QSize small, int smallStep)
{
    Designer designer(sample);
    designer.window.resize(small);
    QTest::qWait(0);
    designer.Find<QTabWidget>("SSTab1")->setCurrentIndex(smallStep - 1);
    QTest::qWait(0);
    designer.window.resize(1000, 700);
    QTest::qWait(0);
    designer.Find<QTabWidget>("SSTab1")->setCurrentIndex(1);
    QTest::qWait(0);
    const auto *area = designer.Find<QScrollArea>("scrollArea");
    EXPECT_EQ(designer.Find<QWidget>("content")->size(), area->maximumViewportSize());
    const auto *grid = designer.Find<QTableView>("DataGrid1");
    EXPECT_EQ(grid->horizontalHeader()->length(), grid->viewport()->width());
}

TEST(StepFlow, FillsAWindowThatGrew)
{
    for (const QSize small : {QSize(300, 170), QSize(500, 400), QSize(789, 575)})
        for (const int step : {1, 2}) {
            SCOPED_TRACE(std::to_string(small.width()) + " wide, on step " + std::to_string(step));
            ExpectFilled(small, step);
        }
}

TEST(StepFlow, LeadsToTheHelpOfTheWords)
{
    const struct {
        const char *label;
        QString caption;
        int contextId;
    } rows[] = {
        {"Label13", u"need some information"_s, 1},
        {"lblLinkName", u"name"_s, 2},
        {"lblLinkVersion", u"version number:"_s, 3},
        {"Label14", u"description"_s, 4},
        {"lblAdd", u"add,"_s, 5},
        {"lblEdit", u"edit,"_s, 5},
        {"lblDelete", u"delete,"_s, 5},
        {"lblReorder", u"reorder"_s, 5},
        {"Label10", u"Question Preview"_s, 10},
        {"Label15", u"upload saved data"_s, 11},
        {"Label16", u"CSV file."_s, 12},
        {"Label17", u"final review."_s, 13},
        {"lblErrorList", u"Error List:"_s, 14},
    };
    const Designer designer;
    QList<int> asked;
    QObject::connect(&designer.window, &appInfoForm::HelpAsked, [&](int id) { asked += id; });
    for (const auto &row : rows) {
        SCOPED_TRACE(row.label);
        auto *label = designer.Find<QLabel>(row.label);
        EXPECT_EQ(label->text(), row.caption);
        EXPECT_EQ(label->cursor().shape(), Qt::PointingHandCursor);
        asked.clear();
        QTest::mouseClick(label, Qt::LeftButton);
        QTest::keyClick(label, Qt::Key_Return);
        EXPECT_EQ(asked, (QList{row.contextId, row.contextId}));
    }
}

} // namespace
