#include "ui/main/questions_fixture.h"

#include "editing/copied_questions.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QClipboard &Clipboard()
{
    return *QGuiApplication::clipboard();
}

void PressShortcut(Qt::Key key, Qt::KeyboardModifiers held = Qt::ControlModifier)
{
    QTest::keyClick(QApplication::focusWidget(), key, held);
}

TEST(QuestionClipboard, GoesToAnotherDesignerWithoutALoss)
{
    {
        const Questions from(3, 1, u"Checkboxes"_s, 2);
        PressShortcut(Qt::Key_C);
        EXPECT_FALSE(from.ProjectChanged());
    }
    const Questions to(1);
    const PromptScript prompts;
    PressShortcut(Qt::Key_V);
    EXPECT_TRUE(prompts.boxes().empty());
    EXPECT_EQ(to.ColumnNames(), (QStringList{u"q1"_s, u"q2"_s}));
    const QuestionRow &pasted = to.project().source.Questions().Rows().back();
    EXPECT_EQ(pasted, (QuestionRow{2, u"Title 2"_s, u"Question 2"_s, u"Checkboxes"_s, u"q2"_s, 2}));
    EXPECT_EQ(to.project().source.ItemsOf(2), (QStringList{u"2.1"_s, u"2.2"_s}));
    EXPECT_EQ(to.Row(), 1);
    EXPECT_EQ(to.Caption("lblq_num"), u"2 of 2"_s);
    EXPECT_TRUE(to.ProjectChanged());
}

TEST(QuestionClipboard, GivesTheCopyAFreeName)
{
    const Questions designer(2);
    PressShortcut(Qt::Key_C);
    PressShortcut(Qt::Key_V);
    PressShortcut(Qt::Key_V);
    EXPECT_EQ(designer.ColumnNames(), (QStringList{u"q1"_s, u"q2"_s, u"q1(1)"_s, u"q1(2)"_s}));
    PressShortcut(Qt::Key_Z);
    EXPECT_EQ(designer.ColumnNames(), (QStringList{u"q1"_s, u"q2"_s, u"q1(1)"_s}));
    PressShortcut(Qt::Key_Z);
    EXPECT_EQ(designer.ColumnNames(), (QStringList{u"q1"_s, u"q2"_s}));
    EXPECT_FALSE(designer.ProjectChanged());
}

TEST(QuestionClipboard, ShowsThePastedRowWhole)
{
    const Questions designer(40);
    Clipboard().setText(u"A\tWhat Ω?\tText\tc"_s); // of which is warned below the preview
    PressShortcut(Qt::Key_V);
    EXPECT_EQ(designer.Row(), 40);
    const QTableView &grid = *designer.Grid();
    const auto place = [&grid] { return grid.visualRect(grid.currentIndex().siblingAtColumn(0)); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return grid.viewport()->rect().contains(place()); }))
        << place().top() << " to " << place().bottom() << " of " << grid.viewport()->height();
}

TEST(QuestionClipboard, GoesOutAsATable)
{
    const Questions designer(2, 1, u"Pulldown List"_s, 2);
    PressShortcut(Qt::Key_C);
    EXPECT_EQ(Clipboard().text(), u"Title\tQuestion\tType\tColumn Name\tItems\n"
                                  "Title 2\tQuestion 2\tPulldown List\tq2\t2.1|2.2\n"_s);
    EXPECT_TRUE(Clipboard().mimeData()->hasFormat(questionsMimeType));
}

TEST(QuestionClipboard, TakesATableAsOneStep)
{
    const Questions designer(1);
    Clipboard().setText(u"Type\tQuestion\tItems\tColumn Name\r\n"
                        "Text\tWho?\t\twho\r\n"
                        "pulldown list\t\"Which\"\"?\"\tone|two\twhich\r\n"_s);
    PressShortcut(Qt::Key_V);
    EXPECT_EQ(designer.ColumnNames(), (QStringList{u"q1"_s, u"who"_s, u"which"_s}));
    EXPECT_EQ(designer.project().source.ItemsOf(3), (QStringList{u"one"_s, u"two"_s}));
    EXPECT_EQ(designer.Row(), 2);
    PressShortcut(Qt::Key_Z);
    EXPECT_EQ(designer.ColumnNames(), QStringList{u"q1"_s});
    PressShortcut(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(designer.ColumnNames().size(), 3);
}

TEST(QuestionClipboard, TellsInOneBoxWhatIsRefused)
{
    const Questions designer(1);
    QString table = u"Title\tQuestion\tType\tColumn Name\nT\tWho?\tText\twho\n"_s;
    for (int row = 0; row < 12; ++row)
        table += u"T\t\tText\tc\n"_s;
    Clipboard().setText(table);
    const PromptScript prompts({u"OK"_s});
    PressShortcut(Qt::Key_V);
    ASSERT_EQ(prompts.boxes().size(), 1u);
    const SeenBox &box = prompts.boxes()[0];
    EXPECT_EQ(box.icon, QMessageBox::Warning);
    EXPECT_TRUE(
        box.text.startsWith(u"Not added:\nRow 3, Question: Please enter a question.\nRow 4, "_s));
    EXPECT_TRUE(box.text.endsWith(u"\nRow 12, Question: Please enter a question.\nand 2 more."_s));
    EXPECT_EQ(designer.ColumnNames(), (QStringList{u"q1"_s, u"who"_s}));
}

TEST(QuestionClipboard, AddsNothingWhereNotAllFit)
{
    const Questions designer(127);
    Clipboard().setText(u"\tWho?\tText\twho\n\tWhat?\tText\twhat\n"_s);
    const PromptScript prompts({u"OK"_s});
    PressShortcut(Qt::Key_V);
    EXPECT_EQ(prompts.texts(), QStringList{u"There is 1 place left for questions, and the "
                                           "clipboard has more. Nothing was added."_s});
    EXPECT_EQ(designer.project().source.QuestionCount(), 127);
    EXPECT_EQ(designer.Row(), 0);
    EXPECT_FALSE(designer.ProjectChanged());
}

TEST(QuestionClipboard, TakesForeignBytesForWhatTheyAre)
{
    const Questions designer(1);
    const PromptScript prompts;
    auto *data = new QMimeData;
    data->setData(questionsMimeType, R"({"version":2,"questions":[{"title":"from later"}]})");
    data->setText(u"\tWho?\tText\twho\n"_s);
    Clipboard().setMimeData(data);
    PressShortcut(Qt::Key_V);
    EXPECT_EQ(designer.ColumnNames(), (QStringList{u"q1"_s, u"who"_s})) << "there is a table, too";

    for (const QString &text : {u""_s, u" \n\t\n"_s}) {
        Clipboard().setText(text);
        PressShortcut(Qt::Key_V);
    }
    Clipboard().setMimeData(new QMimeData);
    PressShortcut(Qt::Key_V);
    EXPECT_EQ(designer.ColumnNames().size(), 2);
    EXPECT_TRUE(prompts.boxes().empty());
}

} // namespace
