#include "ui/questions/item_list_desk.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(ItemListEditor, NamesItsControlsAsItsWindowSays)
{
    for (const EditorWindow &where : {wizard, dialog}) {
        const Desk desk(where);
        EXPECT_EQ(desk.editor.List()->objectName(), where.names.list);
        EXPECT_EQ(desk.editor.List()->accessibleName(), u"List Items"_s);
        const struct {
            QString name, caption, toolTip;
        } buttons[] = {
            {where.names.add, u"Add"_s, u"Add item"_s},
            {where.names.remove, u"Remove"_s, u"Remove item"_s},
            {where.names.up, u""_s, u"Move item up"_s},
            {where.names.down, u""_s, u"Move item down"_s},
            {u"cmd_AddState"_s, u"States"_s, u"Add states"_s},
            {u"cmd_AddCountry"_s, u"Countries"_s, u"Add countries"_s},
            {u"cmd_Clear"_s, u"Clear"_s, u"Clear items"_s},
            {u"cmd_sort"_s, u"Sort"_s, u"Sort items"_s},
        };
        for (const auto &button : buttons) {
            EXPECT_EQ(desk.Button(button.name)->text(), button.caption);
            EXPECT_EQ(desk.Button(button.name)->toolTip(), button.toolTip);
        }
        for (const QString &name :
             {where.names.add, where.names.remove, where.names.up, where.names.down})
            EXPECT_FALSE(desk.Button(name)->icon().isNull());
        EXPECT_EQ(desk.Button(where.names.up)->accessibleName(), u"Move item up"_s);
        EXPECT_EQ(desk.Button(where.names.down)->accessibleName(), u"Move item down"_s);
    }
}

TEST(ItemListEditor, WorksByKeys)
{
    Desk desk(wizard);
    const PromptScript prompts({u"c"_s});
    desk.editor.SetItems({u"a"_s, u"b"_s});
    desk.Type(Qt::Key_Insert);
    EXPECT_EQ(prompts.questions(), QStringList{anItem});
    EXPECT_EQ(desk.Shown(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    desk.Type(Qt::Key_End);
    desk.Type(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(desk.Shown(), (QStringList{u"a"_s, u"c"_s, u"b"_s}));
    desk.Type(Qt::Key_Up, Qt::AltModifier);
    desk.Type(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(desk.Shown(), (QStringList{u"a"_s, u"c"_s, u"b"_s}));
    desk.Type(Qt::Key_Down, Qt::ShiftModifier);
    desk.Type(Qt::Key_Delete);
    EXPECT_EQ(desk.Shown(), QStringList{u"a"_s});
    EXPECT_TRUE(prompts.boxes().empty());
}

TEST(ItemListEditor, ShowsAnyItemOnOneLineWithinTheList)
{
    Desk desk(wizard);
    const QString widest(10000, u'W');
    desk.editor.resize(desk.editor.sizeHint());
    const QSize size = desk.editor.size();
    desk.editor.SetItems({u"short"_s, widest, u"two\nlines"_s, u"<b>bold"_s});
    QTest::qWait(0);
    EXPECT_EQ(desk.editor.sizeHint(), size);
    const QListView *list = desk.editor.List();
    const QRect first = list->visualRect(list->model()->index(0, 0));
    for (int row = 1; row < 4; ++row) {
        const QRect shown = list->visualRect(list->model()->index(row, 0));
        EXPECT_EQ(shown.height(), first.height());
        EXPECT_LE(shown.right(), list->viewport()->width());
    }
    EXPECT_EQ(desk.Shown()[1], widest);
}

TEST(ItemListEditor, TakesMoreItemsThanAQuestionMayHave)
{
    Desk desk(wizard);
    desk.editor.SetItems(Numbered(20000));
    desk.Press(u"cmd_sort"_s);
    desk.Pick(10000);
    const QString picked = desk.Current();
    desk.Press(desk.names.up);
    EXPECT_EQ(desk.Shown().indexOf(picked), 9999);
    desk.Type(Qt::Key_A, Qt::ControlModifier);
    desk.Press(desk.names.remove);
    EXPECT_EQ(desk.Shown(), QStringList());
}

} // namespace
