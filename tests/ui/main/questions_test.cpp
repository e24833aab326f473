#include "editing/question_list.h"
#include "support/print.h"
#include "ui/common/picture_box.h"
#include "ui/support/designer.h"
#include "ui/support/prompt_script.h"

#include <QLabel>
#include <QTableView>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// A project file with questions q1, q2, ... of a type, each with some items.
QString ProjectFile(const QTemporaryDir &folder, int questions, const QString &type = u"Text"_s,
                    int items = 0)
{
    Project project{.FormName = u"Survey"_s, .FormPath = u"C:\\Data"_s};
    for (int n = 1; n <= questions; ++n) {
        const int id = project.source.IssueId();
        const QString number = QString::number(n);
        project.source.Questions().Append(
            {n, u"Title "_s + number, u"Question "_s + number, type, u'q' + number, id});
        for (int item = 1; item <= items; ++item)
            project.source.Items().Append({id, number + u'.' + QString::number(item)});
    }
    const QString path = folder.filePath(u"survey.vmp"_s);
    EXPECT_TRUE(SaveProject(project, path));
    return path;
}

/// The designer on step 2 of such a project, with the question of a row clicked.
class Questions : public Designer
{
public:
    explicit Questions(int questions, int row = 0, const QString &type = u"Text"_s, int items = 0)
        : Designer(ProjectFile(m_files, questions, type, items))
    {
        ClickTab(2);
        if (questions > 0)
            ClickRow(row);
    }

    QTableView *Grid() const { return Find<QTableView>("DataGrid1"); }
    void ClickRow(int row) const
    {
        Grid()->scrollTo(Grid()->model()->index(row, 1));
        const QPoint place = Grid()->visualRect(Grid()->model()->index(row, 1)).center();
        QTest::mouseClick(Grid()->viewport(), Qt::LeftButton, {}, place);
    }
    int Row() const { return Grid()->currentIndex().row(); }
    QStringList ColumnNames() const
    {
        QStringList names;
        for (int row = 0; row < Grid()->model()->rowCount(); ++row)
            names += Grid()->model()->index(row, 4).data().toString();
        return names;
    }
    QString Caption(const char *label) const { return Find<QLabel>(label)->text(); }

private:
    inline static QTemporaryDir m_files;
};

const QString noSelection = u"Please select a question."_s;
const QString reallyDelete = u"Are you sure you want to delete this question?"_s;
const QString reallyDuplicate = u"Are you sure you want to duplicate this question?"_s;

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
        EXPECT_EQ(prompts.boxes()[0].text, noSelection);
        EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Warning);
    }
    EXPECT_FALSE(questions.ProjectChanged());
}

TEST(Questions, AreDeletedAfterAYes)
{
    const Questions questions(3, 2, u"Checkboxes"_s, 2);
    {
        const PromptScript prompts({u"No"_s});
        questions.Click("cmdDel");
        ASSERT_EQ(prompts.boxes().size(), 1u);
        EXPECT_EQ(prompts.boxes()[0].text, reallyDelete);
        EXPECT_EQ(prompts.boxes()[0].defaultButton, u"No"_s);
    }
    EXPECT_EQ(questions.ColumnNames().size(), 3);
    EXPECT_FALSE(questions.ProjectChanged());

    const PromptScript prompts({u"Yes"_s});
    questions.Click("cmdDel");
    EXPECT_EQ(prompts.texts(), QStringList{reallyDelete});
    EXPECT_EQ(questions.ColumnNames(), (QStringList{u"q1"_s, u"q2"_s}));
    EXPECT_EQ(questions.Row(), 1) << "the new last one is current";
    EXPECT_EQ(questions.Caption("lblq_num"), u"2 of 2"_s);
    EXPECT_EQ(questions.project().source.Items().Count(), 4);
    EXPECT_TRUE(questions.ProjectChanged());
}

TEST(Questions, LeaveABlankPreviewAfterTheOnlyOne)
{
    const Questions questions(1, 0, u"Checkboxes"_s, 3);
    const PromptScript prompts({u"Yes"_s});
    questions.Click("cmdDel");
    EXPECT_EQ(prompts.texts(), QStringList{reallyDelete});
    EXPECT_TRUE(questions.ColumnNames().isEmpty());
    for (const char *label : {"lblq_num", "lblTitle", "lblQuestion"})
        EXPECT_EQ(questions.Caption(label), QString());
    EXPECT_FALSE(questions.Find<QWidget>("lstCheckBox")->isVisible());
    EXPECT_FALSE(questions.Find<QLabel>("lblTitle")->autoFillBackground());
    EXPECT_FALSE(questions.Find<PictureBox>("picPalm")->ShowsPicture());
    for (int column = 0; column < 5; ++column)
        EXPECT_GT(questions.Grid()->columnWidth(column), 20);
}

TEST(Questions, MoveAndStaySelected)
{
    const Questions questions(5, 3);
    const PromptScript prompts;
    questions.Click("cmdUp");
    EXPECT_EQ(questions.ColumnNames(), (QStringList{u"q1"_s, u"q2"_s, u"q4"_s, u"q3"_s, u"q5"_s}));
    EXPECT_EQ(questions.Row(), 2);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 4"_s);
    EXPECT_EQ(questions.Caption("lblq_num"), u"3 of 5"_s);
    EXPECT_TRUE(questions.ProjectChanged());
    questions.Click("cmdDown");
    EXPECT_EQ(questions.Row(), 3);
    EXPECT_TRUE(prompts.boxes().empty());
}

TEST(Questions, DoNotMoveBeyondTheEnds)
{
    const Questions questions(2, 0);
    const PromptScript prompts;
    questions.Click("cmdUp");
    questions.ClickRow(1);
    questions.Click("cmdDown");
    EXPECT_EQ(questions.ColumnNames(), (QStringList{u"q1"_s, u"q2"_s}));
    EXPECT_FALSE(questions.ProjectChanged());
    EXPECT_TRUE(prompts.boxes().empty());
}

TEST(Questions, AreDuplicatedAfterAYesAndTheProjectCountsAsUnchanged)
{
    const Questions questions(2, 0);
    {
        const PromptScript prompts({u"No"_s});
        questions.Click("cmdDuplic");
        EXPECT_EQ(prompts.texts(), QStringList{reallyDuplicate});
    }
    EXPECT_EQ(questions.ColumnNames().size(), 2);
    const PromptScript prompts({u"Yes"_s});
    questions.Click("cmdDuplic");
    EXPECT_EQ(questions.ColumnNames(), (QStringList{u"q1"_s, u"q2"_s, u"q1(1)"_s}));
    EXPECT_EQ(questions.Row(), 0);
    EXPECT_EQ(questions.Caption("lblq_num"), u"1 of 3"_s);
    EXPECT_FALSE(questions.ProjectChanged());

    questions.Choose("mnuFileNew");
    EXPECT_EQ(prompts.texts(), QStringList{reallyDuplicate})
        << "the duplicate goes without a question";
    EXPECT_EQ(questions.project().source.QuestionCount(), 0);
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

TEST(Questions, RefuseADuplicateWhoseNameIsTooLong)
{
    Questions questions(1, 0);
    auto &source = const_cast<Project &>(questions.project()).source;
    source.Questions().Current().ColumnName = QString(253, u'a');
    const PromptScript prompts({u"Yes"_s, u"OK"_s});
    questions.Click("cmdDuplic");
    EXPECT_EQ(prompts.texts(),
              (QStringList{reallyDuplicate, u"Column Name is too long to copy"_s}));
    EXPECT_EQ(questions.ColumnNames().size(), 1);
}

TEST(QuestionPreview, IsRefreshedByAClickAndByFourKeys)
{
    const Questions questions(4, 1);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 2"_s);
    QTest::keyClick(questions.Grid(), Qt::Key_Down);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 3"_s);
    QTest::keyClick(questions.Grid(), Qt::Key_Up);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 2"_s);
    QTest::keyClick(questions.Grid(), Qt::Key_PageDown);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 4"_s);
    QTest::keyClick(questions.Grid(), Qt::Key_PageUp);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 1"_s);
}

TEST(QuestionPreview, FollowsAChangeOfTheRowOnceAfterAClick)
{
    const Questions questions(4, 0);
    QTest::keyPress(questions.Grid(), Qt::Key_Down);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 2"_s) << "the click left its mark";
    QTest::keyPress(questions.Grid(), Qt::Key_Down);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 2"_s) << "which was used up";
    QTest::keyRelease(questions.Grid(), Qt::Key_Down);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 3"_s);
}

TEST(QuestionPreview, ForgetsTheClickWithADuplicate)
{
    const Questions questions(4, 0);
    const PromptScript prompts({u"Yes"_s});
    questions.Click("cmdDuplic");
    EXPECT_EQ(prompts.texts(), QStringList{reallyDuplicate});
    QTest::keyPress(questions.Grid(), Qt::Key_Down);
    EXPECT_EQ(questions.Caption("lblTitle"), u"Title 1"_s);
}

TEST(QuestionPreview, ShowsPictureTitleAndQuestion)
{
    const Questions questions(1, 0, u"Notes"_s);
    EXPECT_TRUE(questions.Find<PictureBox>("picPalm")->ShowsPicture());
    EXPECT_TRUE(questions.Find<QLabel>("lblTitle")->autoFillBackground());
    EXPECT_EQ(questions.Caption("lblQuestion"), u"Question 1"_s);
    EXPECT_FALSE(questions.Find<QWidget>("lstCheckBox")->isVisible());
}

TEST(QuestionPreview, ShowsSixItemsAndLeavesRoomWhereThereAreMore)
{
    const struct {
        int items, width;
    } rows[] = {{6, 2295}, {9, 2150}};
    for (const auto &row : rows) {
        const Questions questions(1, 0, u"Checkboxes"_s, row.items);
        const auto *list = questions.Find<QListWidget>("lstCheckBox");
        EXPECT_TRUE(list->isVisible());
        EXPECT_EQ(list->count(), 6);
        EXPECT_EQ(list->width(), row.width / 15);
    }
}

TEST(QuestionPreview, SaysThatATypeIsWrong)
{
    const PromptScript prompts({u"OK"_s, u"OK"_s});
    const Questions questions(1, 0, u"text"_s);
    ASSERT_EQ(prompts.boxes().size(), 2u) << "when the step is entered, and at the click";
    EXPECT_EQ(prompts.boxes()[0].text, u"This type is wrong!"_s);
    EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Critical);
    EXPECT_EQ(questions.Caption("lblTitle"), QString());
    EXPECT_EQ(questions.Caption("lblq_num"), u"1 of 1"_s);
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
