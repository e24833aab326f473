#include "ui/main/fileOpenForm.h"

#include "support/files.h"
#include "support/print.h"
#include "ui/support/prompt_script.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

class FileOpenForm : public testing::Test
{
protected:
    FileOpenForm()
    {
        for (const QString &name : {u"a.vmp"_s, u"b.vmp"_s})
            WriteBytes(Path(name), "x");
        form.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    }

    QString Path(const QString &name) const { return m_folder.filePath(name); }
    template <typename Control> Control *Find(const QString &name) const
    {
        return form.findChild<Control *>(name);
    }
    static void Click(QAbstractButton *button)
    {
        // On its caption, not beside it.
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
    }
    void Press(Qt::Key key) { QTest::keyClick(form.focusWidget(), key); }

    QTemporaryDir m_folder;
    int hidden = 0;
    fileOpenForm form{m_folder.path() + u'/', [this] { ++hidden; }};
    QRadioButton *create = Find<QRadioButton>(u"Option1_0"_s);
    QRadioButton *open = Find<QRadioButton>(u"Option1_1"_s);
    QLineEdit *fileName = Find<QLineEdit>(u"txtFileName"_s);
    QCheckBox *showThis = Find<QCheckBox>(u"chkShowThis"_s);
    QPushButton *ok = Find<QPushButton>(u"Command1"_s);
};

/// Keeps what the file dialogs offered.
class DialogLook : public QObject
{
public:
    DialogLook() { qApp->installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *dialog = qobject_cast<QFileDialog *>(watched);
        if (!dialog || event->type() != QEvent::Show)
            return false;
        name = dialog->objectName();
        folder = dialog->directory().path();
        filters = dialog->nameFilters();
        mode = dialog->acceptMode();
        return false;
    }
    QString name, folder;
    QStringList filters;
    QFileDialog::AcceptMode mode = QFileDialog::AcceptSave;
};

TEST_F(FileOpenForm, IsAsToldWhenItOpens)
{
    EXPECT_EQ(form.windowTitle(), u"Welcome"_s);
    EXPECT_EQ(create->text(), u"Create a new Vellsheet"_s);
    EXPECT_EQ(open->text(), u"Open an existing Vellsheet"_s);
    EXPECT_EQ(showThis->text(), u"Show me this message next time"_s);
    EXPECT_EQ(ok->text(), u"OK"_s);
    EXPECT_TRUE(create->isChecked());
    EXPECT_TRUE(showThis->isChecked());
    EXPECT_TRUE(ok->isDefault());
    EXPECT_TRUE(fileName->isReadOnly());
    EXPECT_FALSE(fileName->accessibleName().isEmpty());
    const QPoint off = form.geometry().center() - form.screen()->geometry().center();
    EXPECT_LE(off.manhattanLength(), 2);
}

TEST_F(FileOpenForm, OkAtOnceCreatesANewProject)
{
    const PromptScript script;
    Click(ok);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.Chosen().choice, u"New"_s);
    EXPECT_EQ(hidden, 0) << "the box is ticked";
    EXPECT_TRUE(script.fileDialogs().isEmpty());
}

TEST_F(FileOpenForm, AClickOnOpenAsksForTheFile)
{
    const PromptScript script({Path(u"a.vmp"_s)});
    const DialogLook look;
    Click(open);
    EXPECT_EQ(script.fileDialogs().size(), 1);
    EXPECT_EQ(look.name, u"fileOpenDialog"_s);
    EXPECT_EQ(look.folder, m_folder.path());
    EXPECT_EQ(look.filters, QStringList{u"VMP Files (*.vmp)"_s});
    EXPECT_EQ(look.mode, QFileDialog::AcceptOpen);
    EXPECT_EQ(fileName->text(), QDir::toNativeSeparators(Path(u"a.vmp"_s)));
    EXPECT_TRUE(form.isVisible());

    Click(showThis);
    Click(ok);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.Chosen().choice, u"Existing"_s);
    EXPECT_EQ(form.Chosen().path, QDir::toNativeSeparators(Path(u"a.vmp"_s)));
    EXPECT_EQ(hidden, 1) << "the box is not ticked";
}

TEST_F(FileOpenForm, AnotherClickLetsChooseAgain)
{
    const PromptScript script({Path(u"a.vmp"_s), Path(u"b.vmp"_s), u""_s});
    Click(open);
    Click(open);
    EXPECT_EQ(form.Chosen().path, QDir::toNativeSeparators(Path(u"b.vmp"_s)));
    Click(open);
    EXPECT_EQ(script.fileDialogs().size(), 3);
    EXPECT_EQ(form.Chosen().path, QDir::toNativeSeparators(Path(u"b.vmp"_s)))
        << "a cancelled dialog leaves it";
    EXPECT_EQ(fileName->text(), form.Chosen().path);
}

TEST_F(FileOpenForm, ACancelledDialogLeavesTheOptionSelected)
{
    const PromptScript script({u""_s});
    Click(open);
    EXPECT_TRUE(open->isChecked());
    EXPECT_EQ(fileName->text(), u""_s);
    Click(ok);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(script.fileDialogs().size(), 1) << "it was offered and is not forced on anybody";
    EXPECT_EQ(form.Chosen().choice, u"Existing"_s);
    EXPECT_EQ(form.Chosen().path, u""_s);
}

TEST_F(FileOpenForm, CreateEmptiesTheFileName)
{
    const PromptScript script({Path(u"a.vmp"_s), u""_s});
    Click(open);
    Click(create);
    EXPECT_EQ(fileName->text(), u""_s);
    EXPECT_EQ(form.Chosen().choice, u"New"_s);

    Click(open);
    EXPECT_EQ(script.fileDialogs().size(), 2);
    EXPECT_EQ(form.Chosen().path, QDir::toNativeSeparators(Path(u"a.vmp"_s)))
        << "the path stays, cancelled or not";
    EXPECT_EQ(fileName->text(), form.Chosen().path) << "and is told";
    Click(create);
    Click(ok);
    EXPECT_EQ(form.Chosen().choice, u"New"_s);
}

TEST_F(FileOpenForm, ArrowKeysMoveTheSelectionAndNoMore)
{
    const PromptScript script;
    ASSERT_EQ(form.focusWidget(), create);
    for (const auto &[forth, back] :
         {std::pair(Qt::Key_Down, Qt::Key_Up), std::pair(Qt::Key_Right, Qt::Key_Left)}) {
        Press(forth);
        EXPECT_TRUE(open->isChecked());
        EXPECT_EQ(form.focusWidget(), open);
        Press(back);
        EXPECT_TRUE(create->isChecked());
        EXPECT_EQ(form.focusWidget(), create);
    }
    EXPECT_TRUE(script.fileDialogs().isEmpty());
}

TEST_F(FileOpenForm, TheSpaceBarAsksForTheFile)
{
    const PromptScript script({Path(u"a.vmp"_s)});
    Press(Qt::Key_Down);
    Press(Qt::Key_Space);
    EXPECT_EQ(script.fileDialogs().size(), 1);
    Press(Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.Chosen().path, QDir::toNativeSeparators(Path(u"a.vmp"_s)));
    EXPECT_EQ(script.fileDialogs().size(), 1);
}

TEST_F(FileOpenForm, OkAsksForAFileThatNobodyWasAskedFor)
{
    const PromptScript script({u""_s, Path(u"b.vmp"_s)});
    showThis->setChecked(false);
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_TRUE(form.isVisible()) << "cancelled: back to the choice";
    EXPECT_EQ(hidden, 0);

    Press(Qt::Key_Up);
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(script.fileDialogs().size(), 2);
    EXPECT_EQ(form.Chosen().path, QDir::toNativeSeparators(Path(u"b.vmp"_s)));
    EXPECT_EQ(hidden, 1);
}

TEST_F(FileOpenForm, EscapeAndTheTitleBarTakeTheSelectionAndLeaveTheSettings)
{
    const PromptScript script({Path(u"a.vmp"_s)});
    showThis->setChecked(false);
    Click(open);
    EXPECT_EQ(script.fileDialogs().size(), 1);
    Press(Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.Chosen().choice, u"Existing"_s);
    EXPECT_EQ(form.Chosen().path, QDir::toNativeSeparators(Path(u"a.vmp"_s)));

    form.show();
    create->setChecked(true);
    form.close();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.Chosen().choice, u"New"_s);
    EXPECT_EQ(hidden, 0);
}

TEST_F(FileOpenForm, TabReachesEveryControlInReadingOrder)
{
    const PromptScript script;
    QStringList reached;
    for (int i = 0; i < 4; ++i) {
        reached += form.focusWidget()->objectName();
        Press(Qt::Key_Tab);
    }
    EXPECT_EQ(reached,
              (QStringList{u"Option1_0"_s, u"txtFileName"_s, u"chkShowThis"_s, u"Command1"_s}));
}

} // namespace
