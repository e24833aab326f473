#include "ui/questions/item_list_desk.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

void Lay(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

QString Laid()
{
    return QGuiApplication::clipboard()->text();
}

TEST(ItemListClipboard, CopiesTheSelectedItemsALineEach)
{
    Desk desk(wizard);
    desk.editor.SetItems({u"a"_s, u"b"_s, u"c"_s});
    Lay(u"before"_s);
    desk.Type(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Laid(), u"before"_s) << "nothing was selected";
    desk.Pick(2);
    desk.Pick(0, Qt::ControlModifier);
    desk.Type(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Laid(), u"a\nc"_s) << "in the order of the list";
    EXPECT_EQ(desk.Shown().size(), 3);
}

TEST(ItemListClipboard, CutsAndPastesWhatWasCut)
{
    Desk desk(dialog);
    const QStringList countries = {u"Chad"_s, u"South Georgia and the South Sandwich Islands"_s};
    desk.editor.SetItems(countries + QStringList{u"c"_s});
    const PromptScript prompts;
    desk.Type(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(desk.Shown().size(), 3) << "nothing was selected";
    desk.Pick(0);
    desk.Pick(1, Qt::ShiftModifier);
    desk.Type(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(desk.Shown(), QStringList{u"c"_s});
    desk.Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(desk.Shown(), QStringList{u"c"_s} + countries);
    EXPECT_TRUE(prompts.boxes().empty());
}

TEST(ItemListClipboard, AddsEachLine)
{
    for (const EditorWindow &where : {wizard, dialog}) {
        Desk desk(where);
        const PromptScript prompts;
        Lay(u"one\r\n\t two \n\n  \nthree"_s);
        desk.Type(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(desk.Shown(), (QStringList{u"one"_s, u"two"_s, u"three"_s}));
        EXPECT_TRUE(prompts.boxes().empty());
    }
}

TEST(ItemListClipboard, AddsFortyItemsByTwoKeys)
{
    Desk desk(wizard);
    const PromptScript prompts;
    Lay(Numbered(40).join(u'\n'));
    int keys = 2; // Ctrl and V
    desk.Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(desk.Shown(), Numbered(40));
    EXPECT_TRUE(prompts.boxes().empty());
    RecordProperty("keys", keys);
}

TEST(ItemListClipboard, TellsInOneBoxWhatIsRefused)
{
    Desk desk(wizard, u"Checkboxes"_s);
    const PromptScript prompts({u"OK"_s});
    QStringList lines = Numbered(50);
    lines.insert(1, u"say \"so\""_s);
    lines.insert(2, lines.first());
    Lay(lines.join(u'\n'));
    desk.Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(desk.Shown(), Numbered(33));
    const QStringList told = Texts(prompts);
    ASSERT_EQ(told.size(), 1);
    const QStringList shown = told[0].split(u'\n');
    ASSERT_EQ(shown.size(), 12);
    EXPECT_EQ(shown[0], u"Not added:"_s);
    EXPECT_EQ(shown[1], u"\"say \"so\"\": Double quotes are not allowed."_s);
    EXPECT_EQ(shown[2], u"\"Item 0\": The item already exists. Please enter a different name."_s);
    EXPECT_EQ(shown[3], u"\"Item 33\": Please keep the Check Box to 32 items or less."_s);
    EXPECT_EQ(shown[11], u"and 9 more."_s);
}

TEST(ItemListClipboard, SelectsAll)
{
    Desk desk(wizard);
    desk.editor.SetItems(Numbered(3));
    desk.Type(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(desk.Selected(), Numbered(3));
}

} // namespace
