#include "ui/questions/wizard_desk.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString noQuotes = u"Double quotes are not allowed."_s;

void Paste(QWidget *box, const QString &text)
{
    QApplication::clipboard()->setText(text);
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
}

TEST(WizardRefusals, WantAType)
{
    WizardDesk desk;
    desk.Open();
    desk.Button(cancel)->setFocus();
    const PromptScript prompts({u"OK"_s});
    desk.Press(next);
    EXPECT_EQ(Exclamations(prompts), QStringList{u"Please select an item."_s});
    EXPECT_EQ(desk.Step(), 1);
    EXPECT_NE(desk.Focused(), u"lstWiz1_1"_s) << "the focus is not moved";
}

TEST(WizardRefusals, OfATitle)
{
    const struct {
        const char *what;
        QString title, message;
    } rows[] = {
        {"20 pass", QString(20, u'a'), u""_s},
        {"21 fail", QString(21, u'a'), u"Please keep the title length to 20 characters or less."_s},
        {"a quote that was pasted", u"a\""_s, noQuotes},
        {"none passes", u""_s, u""_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        WizardDesk desk;
        desk.Open();
        desk.Choose(u"Text"_s);
        desk.Press(next);
        Paste(desk.Title(), row.title);
        const bool passes = row.message.isEmpty();
        const PromptScript prompts(passes ? QStringList() : QStringList{u"OK"_s});
        desk.Press(next);
        EXPECT_EQ(Exclamations(prompts), passes ? QStringList() : QStringList{row.message});
        EXPECT_EQ(desk.Step(), passes ? 3 : 2);
        EXPECT_EQ(desk.Focused(), passes ? u"txtWiz5_1"_s : u"cboWiz2_1"_s);
        EXPECT_EQ(desk.Title()->currentText(), row.title) << "never trimmed, never cut";
    }
}

TEST(WizardRefusals, OfAColumnName)
{
    const QString exists = u"The column name already exists. Please enter a different name."_s;
    const QString tooLong = u"Please keep the column name length to 255 characters or less."_s;
    const struct {
        const char *what;
        QString name, message, stored;
    } rows[] = {
        {"255 pass", QString(255, u'a'), u""_s, QString(255, u'a')},
        {"256 fail", QString(256, u'a'), tooLong, QString(256, u'a')},
        {"more than an edit line takes by default", QString(40000, u'a'), tooLong,
         QString(40000, u'a')},
        {"blanks alone", u"  "_s, u"Please enter a column name."_s, u""_s},
        {"a quote that was pasted", u" a\" "_s, noQuotes, u"a\""_s},
        {"taken", u" Age "_s, exists, u"Age"_s},
        {"another case", u" AGE "_s, u""_s, u"AGE"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        WizardDesk desk;
        AppendQuestion(desk.document.source(), {.type = u"Text"_s, .columnName = u"Age"_s});
        desk.Open();
        desk.Choose(u"Text"_s);
        desk.Press(next);
        desk.Press(next);
        Paste(desk.Column(), row.name);
        const bool passes = row.message.isEmpty();
        const PromptScript prompts(passes ? QStringList() : QStringList{u"OK"_s});
        desk.Press(next);
        EXPECT_EQ(Exclamations(prompts), passes ? QStringList() : QStringList{row.message});
        EXPECT_EQ(desk.Step(), passes ? 4 : 3);
        EXPECT_EQ(desk.Focused(), passes ? u"txtWiz3_1"_s : u"txtWiz5_1"_s);
        EXPECT_EQ(desk.Column()->text(), row.stored);
    }
}

TEST(WizardRefusals, OfAQuestionDifferByTheButton)
{
    const QString lines = u"Carriage returns are not allowed in a question."_s;
    const QString tooLong = u"Please keep the question length to 255 characters or less."_s;
    const struct {
        const char *what;
        QString question, ofNext, ofFinish, stored;
    } rows[] = {
        {"none", u"  "_s, u"Please enter a question."_s, u"Please enter a question"_s, u""_s},
        {"lines that were pasted", u" a\nb "_s, lines, lines, u"a\nb"_s},
        {"256", QString(256, u'a'), tooLong, tooLong, QString(256, u'a')},
    };
    for (const auto &row : rows)
        for (const Nav button : {next, finish}) {
            SCOPED_TRACE(row.what);
            WizardDesk desk;
            desk.Open();
            desk.GoToQuestion(button == next ? u"Checkboxes"_s : u"Text"_s);
            Paste(desk.Question(), row.question);
            const PromptScript prompts({u"OK"_s});
            desk.Press(button);
            EXPECT_EQ(Exclamations(prompts),
                      QStringList{button == next ? row.ofNext : row.ofFinish});
            EXPECT_EQ(desk.Step(), 4);
            EXPECT_EQ(desk.Focused(), u"txtWiz3_1"_s);
            EXPECT_EQ(TextOf(*desk.Question()), row.stored);
            EXPECT_EQ(desk.document.source().QuestionCount(), 0);
            EXPECT_FALSE(desk.document.ProjectChanged());
        }
}

/// Gives the question so many items, the last of them by the button.
void Fill(const WizardDesk &desk, int count)
{
    QStringList items;
    for (int i = 1; i < count; ++i)
        items += QString::number(i);
    desk.Items()->SetItems(items);
    const PromptScript adding({u"the last"_s});
    QTest::mouseClick(desk.Find<QPushButton>(u"cmdWiz4_Add"_s), Qt::LeftButton);
    EXPECT_EQ(adding.questions(), QStringList{u"Please add an item to the List."_s})
        << "one more than allowed can be added";
}

TEST(WizardRefusals, OfItemsComeWhenTheQuestionIsFinished)
{
    const struct {
        QString type;
        int items;
        QString message;
    } rows[] = {
        {u"Pulldown List"_s, 0, u"Please enter at least one item"_s},
        {u"Checkboxes"_s, 0, u"Please enter at least one item"_s},
        {u"Pulldown List"_s, 256, u"Please keep the list to 255 items or less."_s},
        {u"Checkboxes"_s, 33, u"Please keep the Check Box to 32 items or less."_s},
        {u"Pulldown List"_s, 255, u""_s},
        {u"Checkboxes"_s, 32, u""_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.items);
        WizardDesk desk;
        desk.Open();
        desk.GoToItems(row.type);
        if (row.items > 0)
            Fill(desk, row.items);
        ASSERT_EQ(desk.Items()->Items().size(), row.items);
        const PromptScript prompts({row.message.isEmpty() ? u"No"_s : u"OK"_s});
        desk.Press(finish);
        ASSERT_EQ(prompts.boxes().size(), 1u);
        if (row.message.isEmpty()) {
            EXPECT_EQ(desk.document.source().Items().Count(), row.items);
            continue;
        }
        EXPECT_EQ(Exclamations(prompts), QStringList{row.message});
        EXPECT_TRUE(desk.IsOpen());
        EXPECT_EQ(desk.Step(), 5);
        EXPECT_EQ(desk.document.source().QuestionCount(), 0);
    }
}

TEST(WizardRefusals, OfKeys)
{
    WizardDesk desk;
    desk.Open();
    desk.Choose(u"Text"_s);
    desk.Press(next);
    const QString question = u"Carriage returns are not allowed."_s;
    {
        const PromptScript prompts({u"OK"_s, u"OK"_s});
        QTest::keyClicks(desk.Title(), u"a\"b"_s);
        QTest::keyClicks(desk.Title()->lineEdit(), u"\"c"_s);
        EXPECT_EQ(desk.Title()->currentText(), u"abc"_s);
        EXPECT_EQ(Exclamations(prompts), (QStringList{noQuotes, noQuotes}));
    }
    desk.Press(next);
    {
        const PromptScript prompts({u"OK"_s});
        QTest::keyClicks(desk.Column(), u"a\"b"_s);
        EXPECT_EQ(desk.Column()->text(), u"ab"_s);
        EXPECT_EQ(Exclamations(prompts), QStringList{noQuotes});
    }
    desk.Press(next);
    const PromptScript prompts({u"OK"_s, u"OK"_s, u"OK"_s});
    QTest::keyClicks(desk.Question(), u"a\"b"_s);
    QTest::keyClick(desk.Question(), Qt::Key_Return);
    QTest::keyClick(desk.Question(), Qt::Key_Return, Qt::ControlModifier);
    QTest::keyClick(desk.Question(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(TextOf(*desk.Question()), u"a\"b"_s);
    EXPECT_EQ(Exclamations(prompts), (QStringList{question, question, question}));
    EXPECT_EQ(desk.Step(), 4) << "Enter pressed no button";
    EXPECT_EQ(desk.document.source().QuestionCount(), 0);
}

TEST(WizardRefusals, DoNotStandInTheWayBack)
{
    WizardDesk desk;
    desk.Open();
    desk.GoToQuestion(u"Text"_s);
    const PromptScript prompts;
    Paste(desk.Question(), u"  a\nb"_s);
    desk.Press(back);
    Paste(desk.Column(), u" a\" "_s);
    desk.Press(back);
    Paste(desk.Title(), QString(30, u'x'));
    desk.Press(back);
    EXPECT_EQ(desk.Step(), 1);
    EXPECT_TRUE(prompts.boxes().empty());
    EXPECT_EQ(TextOf(*desk.Question()), u"  a\nb"_s);
    EXPECT_EQ(desk.Column()->text(), u" a\" "_s);
}

} // namespace
