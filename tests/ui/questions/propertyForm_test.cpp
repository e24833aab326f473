#include "ui/questions/property_form_fixture.h"

#include "model/question_types.h"

#include <QClipboard>
#include <QLabel>
#include <QScreen>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

using PropertyForm = PropertyFormTest;

TEST_F(PropertyForm, ShowsTheCurrentQuestion)
{
    Open();
    EXPECT_EQ(form->windowTitle(), u"Question Properties"_s);
    EXPECT_EQ(Text("txtOrder"), u"2"_s);
    EXPECT_TRUE(The<QLineEdit>("txtOrder")->isReadOnly());
    EXPECT_EQ(Text("txtTitle"), u"Kind"_s);
    EXPECT_EQ(Question()->toPlainText(), u"Which kind?"_s);
    EXPECT_EQ(The<QComboBox>("cboType")->currentText(), pulldown);
    EXPECT_EQ(Text("txtColumnName"), u"Kind"_s);
    EXPECT_EQ(ShownItems(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(form->focusWidget(), The<QLineEdit>("txtTitle"));
    EXPECT_TRUE(The<QPushButton>("cmdOK")->isDefault());
    EXPECT_EQ(The<QPushButton>("cmdCancel")->text(), u"Cancel"_s);
}

TEST_F(PropertyForm, OffersTheTypesInTheirOrder)
{
    Open();
    const auto *types = The<QComboBox>("cboType");
    ASSERT_EQ(types->count(), 10);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(types->itemText(i), QString(questionTypes[static_cast<size_t>(i)].name));
    EXPECT_FALSE(types->isEditable());
}

TEST_F(PropertyForm, LabelsItsControls)
{
    Open();
    const struct {
        const char *label, *caption, *control;
    } rows[] = {
        {"lblOrder", "Question #:", "txtOrder"},
        {"lblTitle", "Question Title:", "txtTitle"},
        {"lblQuestion", "Question Text:", "txtQuestion"},
        {"lblType", "Question Type:", "cboType"},
        {"lblColumn", "Column Name:", "txtColumnName"},
        {"lblSelections", "List Items:", "lstSelection"},
    };
    for (const auto &row : rows) {
        const auto *label = The<QLabel>(row.label);
        EXPECT_EQ(label->text(), QString::fromLatin1(row.caption));
        EXPECT_EQ(label->buddy(), The<QWidget>(row.control));
        EXPECT_FALSE(The<QWidget>(row.control)->accessibleName().isEmpty()) << row.control;
    }
}

TEST_F(PropertyForm, OpensInTheMiddleOfTheScreen)
{
    Open();
    const QPoint off = form->geometry().center() - form->screen()->availableGeometry().center();
    EXPECT_LE(off.manhattanLength(), 2);
}

TEST_F(PropertyForm, IsWalkedThroughInReadingOrder)
{
    Open();
    The<QLineEdit>("txtTitle")->setFocus();
    QStringList walked;
    for (int i = 0; i < 14; ++i) {
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
        walked += form->focusWidget()->objectName();
    }
    EXPECT_EQ(walked, (QStringList{u"txtQuestion"_s, u"cboType"_s, u"txtColumnName"_s,
                                   u"lstSelection"_s, u"cmdNew"_s, u"cmdDelete"_s, u"cmdUp"_s,
                                   u"cmdDown"_s, u"cmd_sort"_s, u"cmd_Clear"_s, u"cmd_AddState"_s,
                                   u"cmd_AddCountry"_s, u"cmdOK"_s, u"cmdCancel"_s}));
}

TEST_F(PropertyForm, StoresWhatWasEdited)
{
    Open();
    QSignalSpy before(&document, &ProjectDocument::QuestionsAboutToChange);
    QSignalSpy after(&document, &ProjectDocument::QuestionsChanged);
    Enter("txtTitle", u"  Sort "_s);
    Question()->setPlainText(u" Which sort? "_s);
    Enter("txtColumnName", u"sort "_s);
    {
        const PromptScript prompts({u"d"_s});
        Click("cmdNew");
        EXPECT_EQ(prompts.questions(), QStringList{u"Please add the item to the List."_s});
    }
    ExpectAccepted();
    EXPECT_EQ(Row().Title, u"Sort"_s);
    EXPECT_EQ(Row().Question, u"Which sort?"_s);
    EXPECT_EQ(Row().Type, pulldown);
    EXPECT_EQ(Row().ColumnName, u"sort "_s) << "a column name keeps its blanks";
    EXPECT_EQ(Row().Order, 2);
    EXPECT_EQ(Row().Id, 7);
    EXPECT_EQ(StoredItems(), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
    EXPECT_EQ(document.source().ItemsOf(3), QStringList{u"stray"_s});
    EXPECT_EQ(document.project().TitleList, QStringList{QString()});
    EXPECT_EQ(before.size(), 1);
    EXPECT_EQ(after.size(), 1);
}

TEST_F(PropertyForm, WritesNothingWhenCancelled)
{
    for (const bool byKey : {false, true}) {
        Open();
        Enter("txtTitle", u"Sort"_s);
        PickType(u"Notes"_s);
        QSignalSpy changes(&document, &ProjectDocument::QuestionsChanged);
        if (byKey)
            QTest::keyClick(form.get(), Qt::Key_Escape);
        else
            Click("cmdCancel");
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(form->result(), QDialog::Rejected);
        EXPECT_EQ(Row().Title, u"Kind"_s);
        EXPECT_EQ(Row().Type, pulldown);
        EXPECT_EQ(StoredItems().size(), 3);
        EXPECT_FALSE(document.ProjectChanged());
        EXPECT_EQ(changes.size(), 0);
    }
}

TEST_F(PropertyForm, SavesUnderItsOwnColumnNameButNotUnderAnothers)
{
    Open();
    Enter("txtColumnName", u"Age"_s);
    EXPECT_EQ(Objections(), u"The column name already exists. Please enter a different name.\n"_s);
    EXPECT_EQ(Row().ColumnName, u"Kind"_s) << "the cursor stays";
    Enter("txtColumnName", u"Kind"_s);
    ExpectAccepted();
}

TEST_F(PropertyForm, TellsAllThatIsWrongInOneBox)
{
    Open();
    Enter("txtTitle", u"  "_s + QString(21, u't') + u" "_s);
    Question()->setPlainText(u"   "_s);
    EXPECT_EQ(Objections(), u"Please keep the title length to 20 characters or less.\n"
                            u"Please enter a question.\n"_s);
    EXPECT_EQ(Text("txtTitle"), QString(21, u't')) << "trimmed, for the user to go on with";
    EXPECT_EQ(Question()->toPlainText(), u""_s);
    EXPECT_EQ(Row().Title, u"Kind"_s);
    EXPECT_EQ(StoredItems().size(), 3);
}

TEST_F(PropertyForm, TakesLinesPastedIntoOneLineAsOne)
{
    Open();
    QGuiApplication::clipboard()->setText(u"two\nlines\n"_s);
    for (const char *name : {"txtTitle", "txtColumnName"}) {
        The<QLineEdit>(name)->selectAll();
        QTest::keyClick(The<QLineEdit>(name), Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Text(name), u"two lines"_s);
    }
}

TEST_F(PropertyForm, RefusesPastedLineBreaks)
{
    Open();
    Question()->setPlainText(u"Which\nkind?"_s);
    EXPECT_EQ(Objections(), u"Carriage returns are not allowed in a question.\n"_s);
}

TEST_F(PropertyForm, RefusesKeysInItsBoxes)
{
    Open();
    const QString quotes = u"Double quotes are not allowed."_s;
    const QString returns = u"Carriage returns are not allowed."_s;
    const PromptScript prompts({u"OK"_s, u"OK"_s, u"OK"_s, u"OK"_s});
    QTest::keyClick(The<QLineEdit>("txtTitle"), Qt::Key_End);
    QTest::keyClicks(The<QLineEdit>("txtTitle"), u"a\"b"_s);
    QTest::keyClicks(The<QLineEdit>("txtColumnName"), u"a\"b"_s);
    QTest::keyClick(Question(), Qt::Key_Return);
    QTest::keyClick(Question(), Qt::Key_Return, Qt::ControlModifier);
    QTest::keyClicks(Question(), u"\""_s);
    EXPECT_EQ(Text("txtTitle"), u"Kindab"_s);
    EXPECT_EQ(Text("txtColumnName"), u"Kindab"_s);
    EXPECT_EQ(Question()->toPlainText(), u"\"Which kind?"_s);
    QStringList texts;
    for (const SeenBox &box : prompts.boxes())
        texts += box.text;
    EXPECT_EQ(texts, (QStringList{quotes, quotes, returns, returns}));
    EXPECT_TRUE(form->isVisible());
}

TEST_F(PropertyForm, KeepsATypeThatItDoesNotKnow)
{
    for (const QString &type : {u"<b>x"_s, u"text"_s, u" Text"_s, u""_s, QString(10000, u'T')}) {
        SCOPED_TRACE(type.left(10).toStdString());
        Questions().Current().Type = type;
        Questions().Current().Title = u"Kind"_s;
        document.SetProjectChanged(false);
        Open();
        EXPECT_EQ(The<QComboBox>("cboType")->currentText(), type);
        EXPECT_EQ(The<QComboBox>("cboType")->count(), 11);
        EXPECT_FALSE(The<QListView>("lstSelection")->isVisible());
        EXPECT_LT(form->width(), 1000);
        ExpectAccepted();
        EXPECT_EQ(Row().Type, type);
    }
}

TEST_F(PropertyForm, WritesBackWhatWasNotEditedAsItStood)
{
    QuestionRow &row = Questions().Current();
    row.Title = u"5\u00a0m\tand\nmore"_s;
    row.Question = u"\u00a0How\u00a0many\t m?\u00a0"_s;
    row.ColumnName = u" a\nb\u00a0\t "_s;
    const QuestionRow stored = row;
    document.source().Items().Append({.Id = 7, .Item = u" broken\n\"item\"\u00a0"_s});
    document.source().Items().Append({.Id = 7, .Item = QString(10000, u'W')});
    const QStringList items = StoredItems();
    Open();
    EXPECT_LT(form->width(), 1000);
    ExpectAccepted();
    EXPECT_EQ(Row().Title, stored.Title);
    EXPECT_EQ(Row().Question, stored.Question);
    EXPECT_EQ(Row().ColumnName, stored.ColumnName);
    EXPECT_EQ(StoredItems(), items);
}

TEST_F(PropertyForm, TakesAnyLengthAndRefusesItByItsRules)
{
    Open();
    Enter("txtColumnName", QString(40000, u'c'));
    Question()->setPlainText(QString(40000, u'q'));
    EXPECT_EQ(Objections(), u"Please keep the question length to 255 characters or less.\n"
                            u"Please keep the column name length to 255 characters or less.\n"_s);
    EXPECT_EQ(Text("txtColumnName").size(), 40000);
}

} // namespace
