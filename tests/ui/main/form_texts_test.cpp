#include "support/print.h"
#include "ui/common/plain_text.h"
#include "ui/common/step_page.h"
#include "ui/support/designer.h"
#include "ui/support/prompt_script.h"

#include <QClipboard>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString notForFileNames = u"\"\\/:*?<>|are not allowed for file name"_s;

void Paste(const Designer &designer, const char *box, const QString &text)
{
    QApplication::clipboard()->setText(text);
    QTest::keyClick(designer.Find<QWidget>(box), Qt::Key_V, Qt::ControlModifier);
}

/// The project's fields, in their order.
QStringList TextsOf(const Project &project)
{
    QStringList texts;
    for (const FormFieldRow &row : formFields)
        texts += project.*row.text;
    return texts;
}

/// Goes to the box of a field on the step that is shown, and types one letter there. False where
/// the step has none.
bool TypedInto(const Designer &designer, FormField field)
{
    if (QWidget *focus = QApplication::focusWidget())
        focus->clearFocus();
    auto *page = qobject_cast<StepPage *>(designer.Find<QTabWidget>("SSTab1")->currentWidget());
    page->Focus(field);
    if (QWidget *box = QApplication::focusWidget())
        QTest::keyClick(box, Qt::Key_A);
    return QApplication::focusWidget();
}

TEST(FormTexts, HaveABoxEachOnOneStep)
{
    const Designer designer;
    QStringList expected = TextsOf(designer.project());
    for (qsizetype i = 0; const FormFieldRow &row : formFields) {
        SCOPED_TRACE(QString(row.name).toStdString());
        expected[i++] = u"a"_s;
        int boxes = 0;
        for (int step = 1; step <= 4; ++step) {
            designer.ClickTab(step);
            boxes += TypedInto(designer, row.field) ? 1 : 0;
        }
        EXPECT_EQ(boxes, 1);
        EXPECT_EQ(TextsOf(designer.project()), expected);
    }
}

TEST(FormTexts, RefuseTheirKeys)
{
    const struct {
        const char *box;
        QString characters, message;
    } rows[] = {
        {"txtAppName", u"\"*/:<>?\\|"_s, notForFileNames},
        {"txtAppVersion", u"\""_s, u"Double quotes are not allowed."_s},
        {"txt3_appDir", u"\""_s, u"Double quotes are not allowed."_s},
    };
    const Designer designer;
    for (const auto &row : rows) {
        for (const QChar character : row.characters) {
            SCOPED_TRACE(std::string(row.box) + ' ' + character.toLatin1());
            const PromptScript prompts({u"OK"_s});
            designer.Type(row.box, QString(character));
            ASSERT_EQ(prompts.boxes().size(), 1u);
            EXPECT_EQ(prompts.boxes()[0].text, row.message);
            EXPECT_EQ(prompts.boxes()[0].title, u"Vellumo Designer"_s);
            EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Warning);
            EXPECT_EQ(designer.Text(row.box), QString());
        }
    }
    EXPECT_FALSE(designer.ProjectChanged());
}

TEST(FormTexts, RefuseEnterAndCtrlEnterInTheDescription)
{
    const Designer designer;
    for (const Qt::KeyboardModifiers held :
         {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ControlModifier)}) {
        const PromptScript prompts({u"OK"_s});
        QTest::keyClick(designer.Find<QWidget>("txtAppDesc"), Qt::Key_Return, held);
        ASSERT_EQ(prompts.boxes().size(), 1u);
        EXPECT_EQ(prompts.boxes()[0].text, u"Carriage returns are not allowed."_s);
        EXPECT_EQ(designer.project().Description, QString());
    }
}

TEST(FormTexts, TakeBlanksAndLongTextsWhileTyping)
{
    const Designer designer;
    const PromptScript prompts;
    designer.Type("txtAppName", u"My Survey of all the birds of the lake"_s);
    designer.Type("txtAppVersion", u"1.0 beta"_s);
    EXPECT_EQ(designer.project().FormName, u"My Survey of all the birds of the lake"_s);
    EXPECT_EQ(designer.project().FormVersion, u"1.0 beta"_s);
    EXPECT_TRUE(prompts.boxes().empty());
}

TEST(FormTexts, AreTrimmedByTheRulesAndShownSo)
{
    const Designer designer;
    designer.Type("txtAppName", u"  Survey  "_s);
    designer.Click("cmd1_Next");
    EXPECT_EQ(designer.Step(), 2);
    EXPECT_EQ(designer.Text("txtAppName"), u"Survey"_s);
    EXPECT_EQ(designer.project().FormName, u"Survey"_s);
}

TEST(FormTexts, CountAsChangedWhateverChangesThem)
{
    Designer designer;
    for (const char *box : {"txtAppName", "txtAppVersion", "txtAppDesc", "txt3_appDir"}) {
        SCOPED_TRACE(box);
        designer.window.FinishSetUp();
        ASSERT_FALSE(designer.ProjectChanged());
        designer.Type(box, u"a "_s);
        EXPECT_TRUE(designer.ProjectChanged());
        designer.window.FinishSetUp();
        ASSERT_FALSE(designer.ProjectChanged());
        if (box != std::string("txt3_appDir")) {
            designer.ClickTab(2); // the rules trim the box that is left
            EXPECT_TRUE(designer.ProjectChanged());
        }
    }
}

TEST(FormTexts, DoNotCountAsChangedByALookAtThem)
{
    Designer designer(sample);
    const PromptScript prompts({u"OK"_s});
    for (const int step : {2, 3, 4, 1})
        designer.ClickTab(step);
    designer.ClickTab(4);
    designer.Click("cmdReviewForm");
    EXPECT_EQ(prompts.texts(), QStringList{u"Your Vellsheet has been validated successfully!\r\n"
                                           "Press the Create Vellsheet button to create it."_s});
    EXPECT_FALSE(designer.ProjectChanged());
}

TEST(FormTexts, OfOneLineTakePastedLinesAsOne)
{
    const Designer designer;
    Paste(designer, "txtAppName", u"a\nb\n"_s);
    Paste(designer, "txtAppVersion", u"1\r\n2"_s);
    designer.ClickTab(3);
    Paste(designer, "txt3_appDir", u"C:\\Data\n"_s);
    EXPECT_EQ(designer.project().FormName, u"a b"_s);
    EXPECT_EQ(designer.project().FormVersion, u"1 2"_s);
    EXPECT_EQ(designer.project().FormPath, u"C:\\Data"_s);
}

TEST(FormTexts, ShowThePastedLineBreakThatTheRuleRefuses)
{
    const Designer designer;
    designer.Type("txtAppName", u"Survey"_s);
    Paste(designer, "txtAppDesc", u"two\nlines"_s);
    EXPECT_EQ(designer.project().Description, u"two\nlines"_s);

    const PromptScript prompts({u"OK"_s});
    designer.Click("cmd1_Next");
    ASSERT_EQ(prompts.boxes().size(), 1u);
    EXPECT_EQ(prompts.boxes()[0].text, u"\n\nCarriage returns are not allowed in description."_s);
    EXPECT_EQ(designer.Step(), 1);
}

TEST(FormTexts, KeepWhatABoxCannotShow)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"odd.vmp"_s);
    Project odd{.FormName = QString(40'000, u'n'), .Description = u"5\u00a0m, ok"_s};
    ASSERT_TRUE(SaveProject(odd, path));
    const QByteArray before = BytesOf(path);

    Designer designer(path);
    EXPECT_EQ(designer.Text("txtAppName").size(), 40'000);
    EXPECT_EQ(TextOf(*designer.Find<QPlainTextEdit>("txtAppDesc")), u"5\u00a0m, ok"_s);
    designer.Choose("mnuFileSave");
    EXPECT_EQ(BytesOf(path), before);

    designer.Find<QPlainTextEdit>("txtAppDesc")->moveCursor(QTextCursor::End);
    designer.Type("txtAppDesc", u"!"_s);
    EXPECT_EQ(designer.project().Description, u"5\u00a0m, ok!"_s);
}

} // namespace
