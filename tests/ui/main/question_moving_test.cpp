#include "ui/main/questions_fixture.h"
#include "ui/support/dragging.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QStringList Names(int count)
{
    QStringList names;
    for (int n = 1; n <= count; ++n)
        names += u'q' + QString::number(n);
    return names;
}

TEST(QuestionMoving, GoesToAnEndOrByTenAsOneStep)
{
    const struct {
        Qt::Key key;
        int row, to;
    } rows[] = {{Qt::Key_Home, 13, 0},     {Qt::Key_End, 4, 24},   {Qt::Key_PageUp, 22, 12},
                {Qt::Key_PageDown, 3, 13}, {Qt::Key_PageUp, 3, 0}, {Qt::Key_PageDown, 20, 24},
                {Qt::Key_Up, 5, 4},        {Qt::Key_Down, 5, 6}};
    for (const auto &row : rows) {
        const Questions designer(25, row.row);
        designer.Find<QWidget>("cmdAdd")->setFocus(); // wherever it is
        QTest::keyClick(designer.Find<QWidget>("cmdAdd"), row.key, Qt::AltModifier);
        QStringList expected = Names(25);
        expected.move(row.row, row.to);
        EXPECT_EQ(designer.ColumnNames(), expected);
        EXPECT_EQ(designer.Row(), row.to);
        EXPECT_EQ(designer.Caption("lblq_num"), u"%1 of 25"_s.arg(row.to + 1));
        EXPECT_TRUE(designer.ProjectChanged());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(designer.ColumnNames(), Names(25));
        EXPECT_EQ(designer.Row(), row.row);
        EXPECT_FALSE(designer.ProjectChanged());
    }
}

TEST(QuestionMoving, FollowsTheMouseAsOneStep)
{
    const struct {
        const char *what;
        int from, gap, to;
    } rows[] = {{"down", 0, 3, 2}, {"up", 3, 1, 1}, {"to the end", 1, 5, 4}, {"nowhere", 2, 3, 2}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        const Questions designer(5, row.from == 0 ? 4 : 0);
        const Dragging drag(designer.Grid(), row.from, row.gap);
        EXPECT_TRUE(drag.ShowsLine());
        EXPECT_EQ(designer.ColumnNames(), Names(5)) << "not yet";
        drag.LetGo();
        EXPECT_FALSE(drag.ShowsLine());
        QStringList expected = Names(5);
        expected.move(row.from, row.to);
        EXPECT_EQ(designer.ColumnNames(), expected);
        EXPECT_EQ(designer.Row(), row.to);
        EXPECT_EQ(designer.ProjectChanged(), row.to != row.from);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(designer.ColumnNames(), Names(5));
        EXPECT_FALSE(designer.ProjectChanged());
    }
}

/// The rows that the grid shows as selected.
QList<int> Selected(const Questions &designer)
{
    QList<int> rows;
    for (const QModelIndex &index : designer.Grid()->selectionModel()->selectedRows())
        rows += index.row();
    return rows;
}

TEST(QuestionMoving, IsGivenUpByEsc)
{
    const Questions designer(5);
    const Dragging drag(designer.Grid(), 0, 3);
    QTest::keyClick(designer.Grid(), Qt::Key_Escape);
    drag.LetGo();
    EXPECT_EQ(designer.ColumnNames(), Names(5));
    EXPECT_FALSE(designer.ProjectChanged());
    EXPECT_EQ(Selected(designer), QList<int>{0}) << "that of the cursor";
}

TEST(QuestionSelection, IsThatOfTheCursorHoweverTheMouseIsDragged)
{
    const Questions designer(5, 1);
    QTableView *grid = designer.Grid();
    const auto place = [grid](int row) {
        return grid->visualRect(grid->model()->index(row, 1)).center();
    };
    const QPoint below(20, grid->viewport()->height() - 5);
    const struct {
        Qt::MouseButton button;
        Qt::KeyboardModifiers keys;
        QPoint from;
    } drags[] = {{Qt::LeftButton, Qt::NoModifier, below},
                 {Qt::LeftButton, Qt::ControlModifier, place(1)},
                 {Qt::LeftButton, Qt::ShiftModifier, place(1)},
                 {Qt::RightButton, Qt::NoModifier, place(1)}};
    for (const auto &drag : drags) {
        QTest::mousePress(grid->viewport(), drag.button, drag.keys, drag.from);
        QMouseEvent move(QEvent::MouseMove, place(3), grid->viewport()->mapToGlobal(place(3)),
                         Qt::NoButton, drag.button, drag.keys);
        QApplication::sendEvent(grid->viewport(), &move);
        QTest::mouseRelease(grid->viewport(), drag.button, drag.keys, place(3));
        EXPECT_EQ(Selected(designer), QList<int>{grid->currentIndex().row()});
        EXPECT_EQ(designer.Caption("lblq_num"), u"%1 of 5"_s.arg(grid->currentIndex().row() + 1));
    }
}

TEST(QuestionSelection, StaysWhileTheCursorDoes)
{
    const Questions designer(4, 2);
    QWidget *viewport = designer.Grid()->viewport();
    EXPECT_EQ(Selected(designer), QList<int>{2});
    const QPoint below(20, viewport->height() - 5);
    ASSERT_FALSE(designer.Grid()->indexAt(below).isValid());
    QTest::mouseClick(viewport, Qt::LeftButton, {}, below);
    EXPECT_EQ(Selected(designer), QList<int>{2});

    const auto place = [&](int row) {
        return designer.Grid()->visualRect(designer.Grid()->model()->index(row, 1)).center();
    };
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::ControlModifier, place(2));
    EXPECT_EQ(Selected(designer), QList<int>{2});
    EXPECT_EQ(designer.Row(), 2);
    for (const auto held : {Qt::ControlModifier, Qt::ShiftModifier}) {
        QTest::mouseClick(viewport, Qt::LeftButton, held, place(0));
        EXPECT_EQ(Selected(designer), QList<int>{designer.Row()});
        designer.ClickRow(2);
    }
    QTest::keyClick(designer.Grid(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Selected(designer), QList<int>{2});
    QTest::keyClick(designer.Grid(), Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(Selected(designer), QList<int>{2});
}

} // namespace
