#include "ui/questions/item_list_desk.h"
#include "ui/support/dragging.h"

#include <QScrollBar>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// The order of ten items, by their digits.
QString Order(const Desk &desk)
{
    QString order;
    for (const QString &item : desk.Shown())
        order += item.back();
    return order;
}

TEST(ItemListMoving, GoesToAnEndOrByTen)
{
    Desk desk(wizard);
    const struct {
        Qt::Key key;
        int row, to;
    } rows[] = {{Qt::Key_Home, 13, 0},     {Qt::Key_End, 4, 29},   {Qt::Key_PageUp, 25, 15},
                {Qt::Key_PageDown, 3, 13}, {Qt::Key_PageUp, 3, 0}, {Qt::Key_PageDown, 25, 29}};
    for (const auto &row : rows) {
        desk.editor.SetItems(Numbered(30));
        desk.Pick(row.row);
        desk.Type(row.key, Qt::AltModifier);
        QStringList expected = Numbered(30);
        expected.move(row.row, row.to);
        EXPECT_EQ(desk.Shown(), expected);
        EXPECT_EQ(desk.Selected(), QStringList{u"Item %1"_s.arg(row.row)});
        EXPECT_EQ(desk.Current(), u"Item %1"_s.arg(row.row));
    }
    const PromptScript prompts({u"OK"_s});
    desk.Pick(2);
    desk.Pick(4, Qt::ControlModifier);
    desk.Type(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(Texts(prompts), QStringList{u"Please select only one item."_s});
}

TEST(ItemListMoving, FollowsTheMouse)
{
    const struct {
        const char *what;
        int from, gap;
        QString order;
    } rows[] = {
        {"down", 1, 4, u"0231456789"_s},           {"up", 4, 1, u"0412356789"_s},
        {"to the front", 4, 0, u"4012356789"_s},   {"to the end", 4, 10, u"0123567894"_s},
        {"to where it is", 4, 4, u"0123456789"_s}, {"behind itself", 4, 5, u"0123456789"_s}};
    for (const auto &row : rows) {
        Desk desk(wizard);
        desk.editor.resize(400, 600);
        desk.editor.SetItems(Numbered(10));
        const Dragging drag(desk.editor.List(), row.from, row.gap);
        EXPECT_TRUE(drag.ShowsLine()) << row.what;
        EXPECT_EQ(Order(desk), u"0123456789"_s) << "not yet: " << row.what;
        drag.LetGo();
        EXPECT_FALSE(drag.ShowsLine()) << row.what;
        EXPECT_EQ(Order(desk), row.order) << row.what;
        EXPECT_EQ(desk.Selected(), QStringList{u"Item %1"_s.arg(row.from)}) << row.what;
    }
}

TEST(ItemListMoving, TakesAllThatAreSelected)
{
    const struct {
        const char *what;
        int from, gap;
        QString order;
    } rows[] = {{"down, held at the first", 2, 9, u"0134782569"_s},
                {"up, held at the last", 6, 1, u"0256134789"_s},
                {"to where one of them was", 6, 5, u"0134256789"_s},
                {"among themselves", 5, 4, u"0132564789"_s}};
    for (const auto &row : rows) {
        Desk desk(wizard);
        desk.editor.resize(400, 600);
        desk.editor.SetItems(Numbered(10));
        for (const int chosen : {2, 5, 6})
            desk.Pick(chosen, chosen == 2 ? Qt::NoModifier : Qt::ControlModifier);
        const Dragging drag(desk.editor.List(), row.from, row.gap);
        drag.LetGo();
        EXPECT_EQ(Order(desk), row.order) << row.what;
        EXPECT_EQ(desk.Selected(), (QStringList{u"Item 2"_s, u"Item 5"_s, u"Item 6"_s}))
            << row.what;
    }
}

TEST(ItemListMoving, IsGivenUpByEsc)
{
    Desk desk(wizard);
    desk.editor.resize(400, 600);
    desk.editor.SetItems(Numbered(10));
    const Dragging drag(desk.editor.List(), 1, 4);
    QTest::keyClick(desk.editor.List(), Qt::Key_Escape);
    EXPECT_FALSE(drag.ShowsLine());
    drag.LetGo();
    EXPECT_EQ(Order(desk), u"0123456789"_s);
}

TEST(ItemListMoving, EndsWhereTheListBecomesAnother)
{
    Desk desk(wizard);
    desk.editor.resize(400, 600);
    desk.editor.SetItems(Numbered(10));
    const Dragging drag(desk.editor.List(), 8, 1);
    desk.editor.SetItems(Numbered(3));
    EXPECT_FALSE(drag.ShowsLine());
    drag.LetGo();
    EXPECT_EQ(desk.Shown(), Numbered(3));
}

TEST(ItemListMoving, StaysAClickWhileTheMouseHardlyMoves)
{
    Desk desk(wizard);
    desk.editor.SetItems(Numbered(10));
    const QListView *list = desk.editor.List();
    const QPoint place = list->visualRect(list->model()->index(3, 0)).center();
    QTest::mousePress(list->viewport(), Qt::LeftButton, {}, place);
    MoveMouse(list->viewport(), place + QPoint(2, 2));
    EXPECT_FALSE(list->findChild<QWidget *>(u"dropLine"_s)->isVisible());
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, place + QPoint(2, 2));
    EXPECT_EQ(Order(desk), u"0123456789"_s);
    EXPECT_EQ(desk.Selected(), QStringList{u"Item 3"_s});
}

TEST(ItemListMoving, ScrollsBeyondAnEdge)
{
    Desk desk(wizard);
    desk.editor.resize(400, 300);
    desk.editor.SetItems(Numbered(40));
    const QListView *list = desk.editor.List();
    const QPoint place = list->visualRect(list->model()->index(0, 0)).center();
    const QPoint below(place.x(), list->viewport()->height() + 20);
    QTest::mousePress(list->viewport(), Qt::LeftButton, {}, place);
    MoveMouse(list->viewport(), below);
    const QScrollBar *bar = list->verticalScrollBar();
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar->value() == bar->maximum(); }, 60'000));
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, below);
    EXPECT_EQ(desk.Shown().back(), u"Item 0"_s);
}

} // namespace
