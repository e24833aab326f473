#include "support/print.h"
#include "ui/about/frmAbout.h"
#include "ui/about/help_window.h"
#include "ui/common/link_label.h"
#include "ui/main/fileOpenForm.h"
#include "ui/questions/frmWizard.h"
#include "ui/questions/propertyForm.h"
#include "ui/support/designer.h"
#include "ui/support/prompt_script.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTextEdit>

#include <map>
#include <set>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

bool TakesInput(const QWidget *widget)
{
    if (qobject_cast<const QScrollBar *>(widget) || widget->objectName().startsWith("qt_"_L1))
        return false;
    return qobject_cast<const QLineEdit *>(widget) ||
           qobject_cast<const QPlainTextEdit *>(widget) ||
           qobject_cast<const QTextEdit *>(widget) || qobject_cast<const QComboBox *>(widget) ||
           qobject_cast<const QAbstractButton *>(widget) ||
           qobject_cast<const QAbstractItemView *>(widget) ||
           qobject_cast<const LinkLabel *>(widget);
}

/// The visible inputs of a window, without the parts of which they are made.
QList<QWidget *> InputsOf(const QWidget &window)
{
    QList<QWidget *> inputs;
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        const bool isPart = widget->parentWidget() && TakesInput(widget->parentWidget());
        const bool inTabBar = qobject_cast<QTabBar *>(widget->parentWidget());
        if (TakesInput(widget) && !isPart && !inTabBar && widget->isVisible() &&
            widget->window() == &window && !qobject_cast<QMenu *>(widget->parentWidget()) &&
            !qobject_cast<QMenuBar *>(widget->parentWidget()))
            inputs += widget;
    }
    return inputs;
}

QString NameOf(QWidget *widget)
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
    return accessible ? accessible->text(QAccessible::Name) : QString();
}

void ExpectNames(const QWidget &window)
{
    for (auto *box : window.findChildren<QComboBox *>())
        EXPECT_EQ(NameOf(box), box->accessibleName()) << "not what it shows";
    for (QWidget *input : InputsOf(window))
        EXPECT_FALSE(NameOf(input).isEmpty()) << input->objectName().toStdString();
}

QChar MnemonicOf(const QString &caption)
{
    const QKeySequence key = QKeySequence::mnemonic(caption);
    return key.isEmpty() ? QChar() : key.toString().back();
}

void ExpectMnemonicsOnce(const QWidget &window)
{
    std::map<QChar, QString> owners;
    const auto claim = [&](const QString &caption) {
        const QChar mnemonic = MnemonicOf(caption);
        if (mnemonic.isNull())
            return;
        const bool isNew = owners.emplace(mnemonic, caption).second;
        EXPECT_TRUE(isNew) << caption.toStdString() << " and " << owners[mnemonic].toStdString();
    };
    for (const auto *button : window.findChildren<QAbstractButton *>())
        if (button->isVisible())
            claim(button->text());
    for (const auto *label : window.findChildren<QLabel *>())
        if (label->isVisible() && label->buddy())
            claim(label->text());
    for (const auto *bar : window.findChildren<QMenuBar *>())
        for (const QAction *action : bar->actions())
            claim(action->text());
}

using Widgets = std::set<const QWidget *>;

/// The visible buttons of which this is one and only one at a time is checked.
QList<QRadioButton *> GroupOf(const QRadioButton &button)
{
    QList<QRadioButton *> group;
    for (auto *other :
         button.parentWidget()->findChildren<QRadioButton *>(QString(), Qt::FindDirectChildrenOnly))
        if (other->isVisible() && other->autoExclusive())
            group += other;
    return group;
}

/// From where Tab entered a group, the arrows lead through all of it and back.
void ExpectArrowsReachAll(QRadioButton &entered, Widgets &reached)
{
    EXPECT_TRUE(entered.isChecked()) << entered.objectName().toStdString();
    const QList<QRadioButton *> group = GroupOf(entered);
    for (const Qt::Key arrow : {Qt::Key_Up, Qt::Key_Down})
        for (qsizetype i = 0; i < group.size(); ++i) {
            QTest::keyClick(QApplication::focusWidget(), arrow);
            const auto *focus = qobject_cast<QRadioButton *>(QApplication::focusWidget());
            ASSERT_TRUE(focus && group.contains(focus)) << "the arrows lead out of the group";
            EXPECT_TRUE(focus->isChecked()) << focus->objectName().toStdString();
            reached.insert(focus);
        }
    for (qsizetype i = 0; i < group.size() && QApplication::focusWidget() != &entered; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    EXPECT_EQ(QApplication::focusWidget(), &entered);
}

/// Walks with Tab from the window's first widget until it comes round, and with the arrows where
/// Tab leads into a group of radio buttons.
void ExpectKeysReachAll(QWidget &window)
{
    Widgets reached;
    for (int tabs = 0; tabs < 80; ++tabs) {
        QWidget *focus = QApplication::focusWidget();
        auto *radio = qobject_cast<QRadioButton *>(focus);
        if (radio && !reached.contains(radio))
            ExpectArrowsReachAll(*radio, reached);
        for (const QWidget *widget = focus; widget && widget != &window;
             widget = widget->parentWidget())
            reached.insert(widget);
        QTest::keyClick(focus ? focus : &window, Qt::Key_Tab);
    }
    for (const QWidget *input : InputsOf(window))
        EXPECT_TRUE(!input->isEnabled() || reached.contains(input))
            << input->objectName().toStdString();
}

void ExpectUsable(QWidget &window)
{
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_FALSE(InputsOf(window).isEmpty());
    ExpectNames(window);
    ExpectMnemonicsOnce(window);
    ExpectKeysReachAll(window);
}

TEST(EveryWindow, IsUsableWithoutMouseAndWithoutSight)
{
    Designer designer(sample);
    auto &document = const_cast<ProjectDocument &>(designer.window.document());
    for (int step = 1; step <= 4; ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        designer.ClickTab(step);
        ExpectUsable(designer.window);
    }
    {
        SCOPED_TRACE("chooser");
        fileOpenForm chooser(designer.projects, [] {});
        ExpectUsable(chooser);
    }
    {
        SCOPED_TRACE("about box");
        Environment environment;
        environment.siteAddress = u"https://vellumo.example"_s;
        frmAbout about(environment);
        ExpectUsable(about);
    }
    for (const int row : {0, 2, 7}) {
        SCOPED_TRACE("properties of question " + std::to_string(row));
        document.source().SetPosition(row);
        propertyForm properties(document, nullptr);
        ExpectUsable(properties);
    }
}

TEST(EveryWindow, OfTheWizardToo)
{
    Designer designer(sample);
    frmWizard wizard(const_cast<ProjectDocument &>(designer.window.document()), nullptr);
    const auto next = [&] {
        QTest::mouseClick(wizard.findChild<QAbstractButton *>(u"cmdNav_3"_s), Qt::LeftButton);
    };
    ExpectUsable(wizard);
    wizard.findChild<QListWidget *>(u"lstWiz1_1"_s)->setCurrentRow(2);
    for (int step = 2; step <= 5; ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        next();
        ASSERT_TRUE(wizard.windowTitle().endsWith(QString::number(step)));
        ExpectUsable(wizard);
        if (step == 4)
            wizard.findChild<QPlainTextEdit *>(u"txtWiz3_1"_s)->setPlainText(u"Which?"_s);
    }
}

TEST(EveryWindow, OfTheHelpToo)
{
    auto file = HelpFile::Open(QStringLiteral(HELP_FILE));
    ASSERT_TRUE(file) << Describe(file.error()).toStdString();
    const QString page = file->DefaultPage();
    HelpWindow help(
        std::move(*file), [](const QString &) {}, nullptr);
    help.ShowPage(page);
    ExpectUsable(help);

    SCOPED_TRACE("with its find bar");
    QTest::keyClick(&help, Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(help.findChild<QLineEdit *>(u"txtFind"_s)->isVisible());
    ExpectUsable(help);
}

TEST(EveryWindow, HasNoCommandTwiceInAMenu)
{
    const Designer designer;
    for (const auto *menu : designer.window.findChildren<QMenu *>()) {
        std::set<QChar> mnemonics;
        for (const QAction *action : menu->actions()) {
            if (action->isSeparator())
                continue;
            EXPECT_TRUE(mnemonics.insert(MnemonicOf(action->text())).second)
                << action->text().toStdString();
        }
    }
}

} // namespace
