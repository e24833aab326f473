#pragma once

#include "ui/questions/frmWizard.h"

#include "support/print.h"
#include "ui/common/plain_text.h"
#include "ui/common/project_document.h"
#include "ui/questions/item_list_editor.h"
#include "ui/support/prompt_script.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace vellumo {

enum Nav { help, cancel, back, next, finish };

/// The wizard in front of a user, over a project with so many Text questions.
class WizardDesk
{
public:
    explicit WizardDesk(int questions = 0)
    {
        for (int i = 0; i < questions; ++i)
            AppendQuestion(document.source(), {.type = QStringLiteral("Text"),
                                               .columnName = QStringLiteral("c%1").arg(i)});
    }

    frmWizard &Open()
    {
        m_wizard = std::make_unique<frmWizard>(document);
        m_wizard->show();
        m_wizard->activateWindow(); // nobody else does where no window manager runs
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_wizard.get()));
        return *m_wizard;
    }
    bool IsOpen() const { return m_wizard->isVisible(); }

    template <typename Control = QWidget> Control *Find(const QString &name) const
    {
        auto *control = m_wizard->findChild<Control *>(name);
        EXPECT_NE(control, nullptr) << name.toStdString();
        return control;
    }
    QPushButton *Button(Nav nav) const
    {
        return Find<QPushButton>(QStringLiteral("cmdNav_%1").arg(nav));
    }
    void Press(Nav nav) const
    {
        ASSERT_TRUE(Button(nav)->isEnabled());
        QTest::mouseClick(Button(nav), Qt::LeftButton);
    }
    /// Of "Back", "Next" and "Finish", those that can be pressed.
    QString Enabled() const
    {
        QString enabled;
        for (const Nav nav : {back, next, finish})
            enabled += Button(nav)->isEnabled() ? QStringLiteral("BNF")[nav - back] : QChar(u'-');
        return enabled;
    }
    QString Caption() const { return m_wizard->windowTitle(); }
    int Step() const { return Caption().last(1).toInt(); }
    /// What has the focus, once the wizard is in front again.
    QWidget *Focus() const
    {
        m_wizard->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_wizard.get()));
        return QApplication::focusWidget();
    }
    QString Focused() const { return Focus() ? Focus()->objectName() : QString(); }

    QListWidget *Types() const { return Find<QListWidget>(QStringLiteral("lstWiz1_1")); }
    QComboBox *Title() const { return Find<QComboBox>(QStringLiteral("cboWiz2_1")); }
    QLineEdit *Column() const { return Find<QLineEdit>(QStringLiteral("txtWiz5_1")); }
    QPlainTextEdit *Question() const { return Find<QPlainTextEdit>(QStringLiteral("txtWiz3_1")); }
    ItemListEditor *Items() const { return Find<ItemListEditor>(QStringLiteral("items")); }

    void Choose(const QString &type) const
    {
        QListWidgetItem *item = Types()->findItems(type, Qt::MatchExactly).value(0);
        ASSERT_NE(item, nullptr);
        QTest::mouseClick(Types()->viewport(), Qt::LeftButton, {},
                          Types()->visualItemRect(item).center());
    }
    /// From step 1 to step 4; the proposed column name is kept.
    void GoToQuestion(const QString &type, const QString &title = {}) const
    {
        Choose(type);
        Press(next);
        QTest::keyClicks(Title(), title);
        Press(next);
        Press(next);
        ASSERT_EQ(Step(), 4);
    }
    /// From step 1 to step 5.
    void GoToItems(const QString &type) const
    {
        GoToQuestion(type);
        QTest::keyClicks(Question(), QStringLiteral("Which?"));
        Press(next);
        ASSERT_EQ(Step(), 5);
    }
    /// From step 1 to the end of a Text question.
    void Make(const QString &title) const
    {
        GoToQuestion(QStringLiteral("Text"), title);
        QTest::keyClicks(Question(), QStringLiteral("Which?"));
        Press(finish);
    }
    QStringList Offered() const
    {
        QStringList titles;
        for (int i = 0; i < Title()->count(); ++i)
            titles += Title()->itemText(i);
        return titles;
    }

    ProjectDocument document;

private:
    std::unique_ptr<frmWizard> m_wizard;
};

/// What the wizard asks when a question is finished.
inline const QString another = QStringLiteral("You have successfully created a question.\r\n"
                                              "Would you like to create another one?");

/// The texts of the boxes, each of which must be an exclamation with an OK button.
inline QStringList Exclamations(const PromptScript &prompts)
{
    QStringList texts;
    for (const SeenBox &box : prompts.boxes()) {
        texts += box.text;
        EXPECT_EQ(box.title, QStringLiteral("Vellumo Designer"));
        EXPECT_EQ(box.icon, QMessageBox::Warning);
        EXPECT_EQ(box.buttons, QStringList{QStringLiteral("OK")});
    }
    return texts;
}

} // namespace vellumo
