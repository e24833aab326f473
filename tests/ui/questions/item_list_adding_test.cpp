#include "ui/questions/item_list_desk.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString tooLong = u"Please keep the item length to 32 characters or less."_s;
const QString quotes = u"Double quotes are not allowed."_s;
const QString exists = u"The item already exists. Please enter a different name."_s;

TEST(ItemListEditor, AsksForAnItemWithItsWindowsPrompt)
{
    const struct {
        const EditorWindow &where;
        QString prompt;
    } rows[] = {{wizard, anItem}, {dialog, theItem}};
    for (const auto &row : rows) {
        const Desk desk(row.where);
        const PromptScript prompts({u"  Red "_s});
        desk.Press(desk.names.add);
        EXPECT_EQ(prompts.questions(), QStringList{row.prompt});
        EXPECT_EQ(desk.Shown(), QStringList{u"Red"_s});
        EXPECT_EQ(Texts(prompts), QStringList());
    }
}

TEST(ItemListEditor, RefusesAnItemThatItHas)
{
    const Desk desk(wizard);
    const PromptScript prompts({u" Red "_s, u"Red"_s, u"OK"_s, u"red"_s});
    desk.Press(desk.names.add);
    desk.Press(desk.names.add);
    desk.Press(desk.names.add);
    EXPECT_EQ(Texts(prompts), QStringList{exists});
    EXPECT_EQ(prompts.questions(), QStringList(3, anItem));
    EXPECT_EQ(desk.Shown(), (QStringList{u"Red"_s, u"red"_s}));
}

TEST(ItemListEditor, AsksAgainUntilTheTextFits)
{
    const Desk desk(dialog);
    const QString over(33, u'x');
    const QString fits = u' ' + QString(31, u'x');
    const PromptScript prompts({over, u"OK"_s, u"5\""_s, u"OK"_s, fits});
    desk.Press(desk.names.add);
    EXPECT_EQ(Texts(prompts), (QStringList{tooLong, quotes}));
    EXPECT_EQ(prompts.questions(), (QStringList{theItem, anItem, anItem}));
    EXPECT_EQ(desk.Shown(), QStringList{fits}) << "as typed, with its blank";
}

TEST(ItemListEditor, TrimsTheFirstAnswerBeforeItMeasuresIt)
{
    const Desk desk(wizard);
    const QString longest(32, u'x');
    const PromptScript prompts(
        {u"  "_s + longest + u"  "_s, longest + u"y"_s, u"OK"_s, longest + u' ', u"OK"_s, u"  "_s});
    desk.Press(desk.names.add);
    EXPECT_EQ(desk.Shown(), QStringList{longest});
    desk.Press(desk.names.add);
    EXPECT_EQ(Texts(prompts), (QStringList{tooLong, tooLong})) << "a repeated answer is measured";
    EXPECT_EQ(prompts.questions(), QStringList(4, anItem));
    EXPECT_EQ(desk.Shown(), (QStringList{longest, u"  "_s})) << "and stored as it stands";
}

TEST(ItemListEditor, AddsNothingWhenTheUserGivesUp)
{
    for (const QStringList &answers :
         {QStringList{u""_s}, QStringList{u"   "_s}, QStringList{u"\""_s, u"OK"_s, u""_s}}) {
        const Desk desk(wizard);
        const PromptScript prompts(answers);
        desk.Press(desk.names.add);
        EXPECT_EQ(desk.Shown(), QStringList());
        EXPECT_EQ(Texts(prompts), answers.size() == 3 ? QStringList{quotes} : QStringList());
        EXPECT_EQ(prompts.questions(), QStringList(answers.size() == 3 ? 2 : 1, anItem));
    }
}

TEST(ItemListEditor, AsksForNothingWhenTheListIsFull)
{
    const struct {
        const EditorWindow &where;
        QString type;
        int offered, refused;
        QString message;
    } rows[] = {
        {wizard, u"Pulldown List"_s, 255, 256, tooManyItems},
        {wizard, u"Checkboxes"_s, 32, 33, u"Please keep the Check Box to 32 items or less."_s},
        {dialog, u"Pulldown List"_s, 254, 255, tooManyItems},
        {dialog, u"Checkboxes"_s, 254, 255, tooManyItems},
    };
    for (const auto &row : rows) {
        Desk desk(row.where, row.type);
        desk.editor.SetItems(Numbered(row.offered));
        const PromptScript prompts({u"one more"_s, u"OK"_s});
        desk.Press(desk.names.add);
        EXPECT_EQ(desk.Shown().size(), row.refused);
        desk.Press(desk.names.add);
        EXPECT_EQ(desk.Shown().size(), row.refused);
        EXPECT_EQ(prompts.questions().size(), 1);
        EXPECT_EQ(Texts(prompts), QStringList{row.message});
    }
}

} // namespace
