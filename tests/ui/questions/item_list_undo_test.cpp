#include "ui/questions/item_list_desk.h"
#include "ui/support/dragging.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(ItemListUndo, TakesBackEachStepAndDoesItAgain)
{
    Desk desk(dialog);
    desk.editor.resize(400, 600);
    desk.editor.SetItems({u"b"_s, u"a"_s, u"c"_s});
    QList<QStringList> states = {desk.Shown()};
    const auto done = [&] { states += desk.Shown(); };
    QGuiApplication::clipboard()->setText(u"d\ne\nd"_s);
    PromptScript prompts({u"OK"_s});
    desk.Type(Qt::Key_V, Qt::ControlModifier);
    done();
    desk.Press(u"cmd_sort"_s);
    done();
    Dragging(desk.editor.List(), 4, 0).LetGo();
    done();
    desk.Pick(2);
    desk.Type(Qt::Key_Down, Qt::AltModifier);
    done();
    desk.Type(Qt::Key_A, Qt::ControlModifier);
    desk.Type(Qt::Key_X, Qt::ControlModifier);
    EXPECT_TRUE(desk.Shown().isEmpty());
    done();

    for (qsizetype state = states.size() - 2; state >= 0; --state) {
        desk.Type(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(desk.Shown(), states[state]) << "back to " << state;
    }
    desk.Type(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(desk.Shown(), states.front()) << "there is no more";
    for (qsizetype state = 1; state < states.size(); ++state) {
        desk.Type(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(desk.Shown(), states[state]) << "on to " << state;
    }
    EXPECT_EQ(prompts.boxes().size(), 1u) << "of the line that was there already";
}

TEST(ItemListUndo, SelectsWhatChanged)
{
    Desk desk(wizard);
    desk.editor.SetItems(Numbered(5));
    desk.Pick(3);
    desk.Type(Qt::Key_Delete);
    desk.Pick(0);
    desk.Type(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(desk.Selected(), QStringList{u"Item 3"_s});
    EXPECT_EQ(desk.Current(), u"Item 3"_s);
}

TEST(ItemListUndo, ForgetsWhatWasTakenBack)
{
    Desk desk(wizard);
    desk.editor.SetItems(Numbered(3));
    desk.Pick(0);
    desk.Type(Qt::Key_Delete);
    desk.Type(Qt::Key_Z, Qt::ControlModifier);
    desk.Pick(2);
    desk.Type(Qt::Key_Delete);
    desk.Type(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(desk.Shown(), Numbered(2)) << "what was taken back is of another way";
}

/// One is what is shown already, of the question that comes next.
TEST(ItemListUndo, ForgetsOtherLists)
{
    for (const int more : {0, 2}) {
        Desk desk(wizard);
        desk.editor.SetItems(Numbered(3));
        desk.Pick(2);
        desk.Type(Qt::Key_Delete);
        desk.editor.SetItems(Numbered(2 + more));
        desk.Type(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(desk.Shown(), Numbered(2 + more)) << "a step of the other list is taken back";

        desk.Pick(0);
        desk.Type(Qt::Key_Delete);
        desk.Type(Qt::Key_Z, Qt::ControlModifier);
        desk.editor.SetItems(Numbered(2 + 2 * more));
        desk.Type(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(desk.Shown(), Numbered(2 + 2 * more)) << "a step of the other list is done again";
    }
}

} // namespace
