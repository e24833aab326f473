#include "support/print.h"
#include "ui/support/designer.h"
#include "ui/support/prompt_script.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QStringList Errors(const Designer &designer)
{
    QStringList texts;
    const auto *list = designer.Find<QListWidget>("lstError");
    for (int row = 0; row < list->count(); ++row)
        texts += list->item(row)->text();
    return texts;
}

/// Reviews on step 4; gives the one box that answers.
SeenBox Review(const Designer &designer)
{
    designer.ClickTab(4);
    const PromptScript prompts({u"OK"_s});
    designer.Click("cmdReviewForm");
    EXPECT_EQ(prompts.boxes().size(), 1u);
    return prompts.boxes().empty() ? SeenBox() : prompts.boxes()[0];
}

void DoubleClick(const Designer &designer, int row)
{
    auto *list = designer.Find<QListWidget>("lstError");
    const QPoint place = list->visualItemRect(list->item(row)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
}

bool MayCreate(const Designer &designer)
{
    return designer.Find<QWidget>("cmdCreateForm")->isEnabled();
}

TEST(Review, ListsThreeErrorsOfAnEmptyProject)
{
    const Designer designer;
    const SeenBox box = Review(designer);
    EXPECT_EQ(box.title, u"Vellumo Designer"_s);
    EXPECT_EQ(box.text, u"There are errors in your Vellsheet. "
                        "Please check the Error List for details."_s);
    EXPECT_EQ(box.icon, QMessageBox::Critical);
    EXPECT_EQ(box.buttons, QStringList{u"OK"_s});
    EXPECT_EQ(Errors(designer),
              (QStringList{u"Step1\t\tPlease enter a name for your Vellsheet."_s,
                           u"Step2\t\tYour Vellsheet requires a minimum of one question."_s,
                           u"Step3\t\tPlease provide a default data directory path."_s}));
    for (int step = 1; step <= 4; ++step)
        EXPECT_EQ(designer.Mark(step), StepMarkInvalid);
    EXPECT_FALSE(MayCreate(designer));
}

TEST(Review, AllowsCreationOfAProjectWithoutErrors)
{
    const Designer designer(sample);
    designer.ClickTab(4);
    EXPECT_FALSE(MayCreate(designer));
    const SeenBox box = Review(designer);
    EXPECT_EQ(box.text, u"Your Vellsheet has been validated successfully!\r\n"
                        "Press the Create Vellsheet button to create it."_s);
    EXPECT_EQ(box.icon, QMessageBox::Information);
    for (int step = 1; step <= 4; ++step)
        EXPECT_EQ(designer.Mark(step), StepMarkValid);
    EXPECT_TRUE(MayCreate(designer));
    EXPECT_TRUE(Errors(designer).isEmpty());
}

TEST(Review, IsSilentAfterOpening)
{
    const PromptScript prompts;
    const Designer designer(sample);
    for (int step = 1; step <= 4; ++step)
        EXPECT_EQ(designer.Mark(step), StepMarkValid);
    EXPECT_TRUE(MayCreate(designer));
    EXPECT_TRUE(Errors(designer).isEmpty());
    EXPECT_TRUE(prompts.boxes().empty());
}

TEST(Review, IsNeededAgainAfterEveryReturnToStepFour)
{
    const Designer designer(sample);
    Review(designer);
    ASSERT_TRUE(MayCreate(designer));
    designer.ClickTab(3);
    EXPECT_EQ(designer.Mark(4), StepMarkValid) << "only coming back asks for a new review";
    designer.ClickTab(4);
    EXPECT_FALSE(MayCreate(designer));
    EXPECT_EQ(designer.Mark(4), StepMarkInvalid);

    Review(designer);
    ASSERT_TRUE(MayCreate(designer));
    designer.Click("cmd4_back");
    designer.Click("cmd3_Next");
    EXPECT_FALSE(MayCreate(designer));
}

TEST(Review, ListsVersionBeforeDescriptionAndLeadsToTheirBoxes)
{
    const Designer designer(sample);
    designer.Find<QLineEdit>("txtAppVersion")->setText(u"1.0 beta"_s);
    designer.Find<QPlainTextEdit>("txtAppDesc")->setPlainText(u"two\nlines"_s);
    Review(designer);
    EXPECT_EQ(Errors(designer),
              (QStringList{u"Step1\t\tSpaces in the Vellsheet Version are not allowed."_s,
                           u"Step1\t\tCarriage returns are not allowed in description."_s}));

    DoubleClick(designer, 0);
    EXPECT_EQ(designer.Step(), 1);
    EXPECT_TRUE(designer.HasFocus("txtAppVersion"));
    EXPECT_EQ(Errors(designer).size(), 2) << "the list stays until the next review";
    designer.ClickTab(4);
    DoubleClick(designer, 1);
    EXPECT_EQ(designer.Step(), 1);
    EXPECT_TRUE(designer.HasFocus("txtAppName")) << "not the description, on purpose";
}

TEST(Review, LeadsToTheOtherSteps)
{
    const Designer designer;
    Review(designer);
    DoubleClick(designer, 1);
    EXPECT_EQ(designer.Step(), 2);
    designer.ClickTab(4);
    DoubleClick(designer, 2);
    EXPECT_EQ(designer.Step(), 3);
    EXPECT_TRUE(designer.HasFocus("txt3_appDir"));
}

TEST(Review, IsFollowedByKeyboardToo)
{
    const Designer designer;
    Review(designer);
    auto *list = designer.Find<QListWidget>("lstError");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(designer.Step(), 4) << "nothing is selected";
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_NE(designer.Step(), 4);
}

TEST(Review, AGoneBadProjectMayNoLongerBeCreated)
{
    const Designer designer(sample);
    Review(designer);
    designer.Find<QLineEdit>("txt3_appDir")->setText(u"nowhere"_s);
    EXPECT_TRUE(MayCreate(designer)) << "an edit alone asks for no review";
    Review(designer);
    EXPECT_FALSE(MayCreate(designer));
}

} // namespace
