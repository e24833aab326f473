#include "model/project_writer.h"
#include "support/print.h"
#include "ui/support/designer.h"
#include "ui/support/prompt_script.h"

#include <QSignalSpy>
#include <QTableView>

#include <malloc.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// The designer with the sample, which takes steps back.
class Undoing : public Designer
{
public:
    explicit Undoing(int step) : Designer(sample) { ClickTab(step); }

    void Undo() const { Press(Qt::CTRL | Qt::Key_Z); }
    void Redo() const { Press(Qt::CTRL | Qt::SHIFT | Qt::Key_Z); }
    QByteArray Bytes() const { return *WriteProject(project()); }
    QTableView *Grid() const { return Find<QTableView>("DataGrid1"); }
    void ClickRow(int row) const
    {
        Grid()->scrollTo(Grid()->model()->index(row, 1));
        const QPoint place = Grid()->visualRect(Grid()->model()->index(row, 1)).center();
        QTest::mouseClick(Grid()->viewport(), Qt::LeftButton, {}, place);
    }
    int Row() const { return Grid()->currentIndex().row(); }

private:
    static void Press(QKeyCombination key)
    {
        QTest::keyClick(QApplication::focusWidget(), key.key(), key.keyboardModifiers());
    }
};

TEST(Undo, TakesBackAndRepeatsWhatWasDoneToQuestions)
{
    const struct {
        const char *button;
        int row;
        bool counts;
        QStringList answers;
    } rows[] = {{"cmdDel", 2, true, {u"Yes"_s}},
                {"cmdUp", 4, true, {}},
                {"cmdDown", 0, true, {}},
                {"cmdDuplic", 7, false, {u"Yes"_s}}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.button);
        const Undoing designer(2);
        const QByteArray before = designer.Bytes();
        designer.ClickRow(row.row);
        const PromptScript prompts(row.answers);
        designer.Click(row.button);
        EXPECT_EQ(prompts.boxes().size(), size_t(row.answers.size()));
        const QByteArray after = designer.Bytes();
        const int rowAfter = designer.Row();
        EXPECT_NE(after, before);

        designer.Grid()->setFocus();
        designer.Undo();
        EXPECT_EQ(designer.Bytes(), before);
        EXPECT_FALSE(designer.ProjectChanged());
        EXPECT_EQ(designer.Row(), row.row);
        designer.Redo();
        EXPECT_EQ(designer.Bytes(), after);
        EXPECT_EQ(designer.ProjectChanged(), row.counts);
        EXPECT_EQ(designer.Row(), rowAfter);
    }
}

TEST(Undo, TakesBackStepsOneByOneAndShowsWhereItWas)
{
    const Undoing designer(2);
    const QByteArray begun = designer.Bytes();
    designer.ClickRow(5);
    designer.Click("cmdUp");
    designer.Click("cmdUp");
    designer.ClickTab(1);
    auto *name = designer.Find<QLineEdit>("txtAppName");
    name->setFocus();
    name->end(false);
    QTest::keyClicks(name, u"ab"_s);
    designer.ClickTab(4);
    designer.Find<QWidget>("cmdReviewForm")->setFocus();

    designer.Undo();
    EXPECT_EQ(designer.Step(), 1);
    EXPECT_TRUE(designer.HasFocus("txtAppName"));
    EXPECT_EQ(designer.Text("txtAppName"), u"SiteVisit"_s) << "both letters are one step";
    designer.Undo();
    EXPECT_EQ(designer.Step(), 2);
    EXPECT_EQ(designer.Row(), 4);
    designer.Undo();
    EXPECT_EQ(designer.Row(), 5);
    EXPECT_EQ(designer.Bytes(), begun);
    EXPECT_FALSE(designer.ProjectChanged());
    designer.Undo();
    EXPECT_EQ(designer.Bytes(), begun) << "there is nothing more";
}

TEST(Undo, IsFirstOfAllTheBoxesOwn)
{
    const Undoing designer(2);
    designer.ClickRow(3);
    designer.Click("cmdUp");
    const QByteArray moved = designer.Bytes();
    designer.ClickTab(1);
    auto *description = designer.Find<QPlainTextEdit>("txtAppDesc");
    description->setFocus();
    QTest::keyClicks(description, u"More. "_s);
    EXPECT_NE(designer.Bytes(), moved);
    designer.Undo();
    EXPECT_EQ(designer.Bytes(), moved) << "by the box";
    EXPECT_EQ(designer.Step(), 1);
    designer.Undo();
    EXPECT_EQ(designer.Step(), 2) << "the box had nothing more to take back";
    EXPECT_FALSE(designer.ProjectChanged());
}

TEST(Undo, OfABoxKnowsTheSavedStateToo)
{
    for (const char *box : {"txtAppName", "txtAppDesc"}) {
        SCOPED_TRACE(box);
        const Undoing designer(1);
        auto *widget = designer.Find<QWidget>(box);
        widget->setFocus();
        QTest::keyClicks(widget, u"abc"_s);
        EXPECT_TRUE(designer.ProjectChanged());
        for (int times = 0; times < 3; ++times)
            designer.Undo();
        EXPECT_FALSE(designer.ProjectChanged());
        QTest::keyClicks(widget, u"a"_s);
        QTest::keyClick(widget, Qt::Key_Backspace);
        EXPECT_TRUE(designer.ProjectChanged()) << "typed, whatever it gave";
    }
}

TEST(Undo, KnowsTheSavedState)
{
    Undoing designer(2);
    const QString path = designer.folder.filePath(u"saved.vmp"_s);
    designer.ClickRow(3);
    designer.Click("cmdUp");
    {
        const PromptScript prompts({path});
        designer.Choose("mnuFileSaveAS");
        EXPECT_EQ(prompts.fileDialogs().size(), 1);
    }
    designer.Activate();
    EXPECT_FALSE(designer.ProjectChanged());
    designer.Grid()->setFocus();
    designer.Undo();
    EXPECT_TRUE(designer.ProjectChanged());
    designer.Redo();
    EXPECT_FALSE(designer.ProjectChanged());
}

TEST(Undo, TellsOnceWhatTheQuestionHasToTell)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"odd.vmp"_s);
    Project project;
    for (const int order : {1, 2})
        project.source.Questions().Append({.Order = order, .Type = u"Telepathy"_s, .Id = order});
    ASSERT_TRUE(SaveProject(project, path));
    const Designer designer(path);
    {
        const PromptScript prompts({u"OK"_s, u"OK"_s});
        designer.ClickTab(2);
        designer.Click("cmdDown");
        EXPECT_EQ(prompts.boxes().size(), 2u);
    }
    designer.ClickTab(1);
    const PromptScript prompts({u"OK"_s});
    QTest::keyClick(designer.Find<QWidget>("SSTab1"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(designer.Step(), 2);
    EXPECT_EQ(prompts.texts(), QStringList{u"This type is wrong!"_s});
}

TEST(Undo, OfATextLeavesTheQuestionsAlone)
{
    const Undoing designer(1);
    QSignalSpy questions(&designer.window.document(), &ProjectDocument::QuestionsChanged);
    auto *name = designer.Find<QLineEdit>("txtAppName");
    name->setFocus();
    QTest::keyClicks(name, u"ab"_s);
    designer.Find<QWidget>("SSTab1")->setFocus();
    designer.Undo();
    EXPECT_EQ(name->text(), u"SiteVisit"_s);
    EXPECT_TRUE(questions.isEmpty());
}

TEST(Undo, EndsWithTheProject)
{
    Undoing designer(2);
    designer.ClickRow(3);
    designer.Click("cmdUp");
    {
        const PromptScript prompts({u"No"_s});
        designer.Choose("mnuFileNew");
        EXPECT_EQ(prompts.boxes().size(), 1u);
    }
    designer.Activate();
    const QByteArray empty = designer.Bytes();
    designer.Undo();
    EXPECT_EQ(designer.Bytes(), empty);
}

TEST(Undo, StaysSmallForTheLargestProject)
{
    ProjectDocument document;
    Project project;
    for (int n = 1; n <= 128; ++n) {
        const int id = project.source.IssueId();
        project.source.Questions().Append(
            {n, u"Title"_s, u"Question?"_s, u"Checkboxes"_s, u"Q%1"_s.arg(n), id});
        for (int item = 1; item <= 255; ++item)
            project.source.Items().Append({id, u"Item %1"_s.arg(item)});
    }
    document.Replace(std::move(project), {});

    const size_t before = mallinfo2().uordblks;
    for (int step = 0; step < 1000; ++step) {
        document.source().SetPosition(step % 128);
        document.ChangeQuestions([](clsDataSource &source) {
            const int id = source.Questions().Current().Id;
            QStringList items;
            for (int item = 1; item <= 255; ++item)
                items += u"Item %1"_s.arg(item);
            source.ReplaceItems(id, items);
        });
    }
    const size_t grown = mallinfo2().uordblks - before;
    EXPECT_LT(grown, 64u << 20) << grown;
    for (int step = 0; step < 1000; ++step)
        document.Undo();
    EXPECT_EQ(document.source().ItemsOf(1).size(), 255);
    EXPECT_FALSE(document.ProjectChanged());
}

} // namespace
