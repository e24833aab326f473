#include "ui/about/myHelp.h"

#include "support/files.h"
#include "support/print.h"
#include "ui/about/help_browser.h"
#include "ui/about/help_window.h"
#include "ui/support/prompt_script.h"

#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// Every help window that is to be seen.
QList<HelpWindow *> HelpWindows()
{
    QList<HelpWindow *> windows;
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (auto *window = qobject_cast<HelpWindow *>(widget); window && window->isVisible())
            windows += window;
    return windows;
}

/// The program's help, and a window that asks for it.
struct Asker {
    Asker()
    {
        environment.helpFile = QStringLiteral(HELP_FILE);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    /// The title of the one help window; empty where there is none or more.
    QString Title() const
    {
        const auto windows = HelpWindows();
        return windows.size() == 1 ? windows.front()->windowTitle() : QString();
    }

    QWidget window;
    Environment environment;
    myHelp help{environment};
};

TEST(myHelp, OpensThePageOfEachNumber)
{
    const struct {
        quint32 context;
        QString title;
    } rows[] = {
        {1, u"What identifies a Vellsheet"_s}, {2, u"Naming your Vellsheet"_s},
        {3, u"The version number"_s},          {4, u"The description"_s},
        {5, u"Designing your questions"_s},    {10, u"Question preview"_s},
        {11, u"Uploading saved data"_s},       {12, u"The CSV file and its folder"_s},
        {13, u"The final review"_s},           {14, u"The error list"_s},
        {15, u"The question wizard"_s},        {16, u"What fits the screen"_s},
        {6, u"Welcome to Vellumo Designer"_s}, {4000000000, u"Welcome to Vellumo Designer"_s},
    };
    Asker asker;
    for (const auto &row : rows) {
        asker.help.ShowHelp(HH_HELP_CONTEXT, row.context, &asker.window);
        EXPECT_EQ(asker.Title(), row.title + u" - Vellumo Designer Help"_s) << row.context;
        auto *page = HelpWindows().value(0)->findChild<HelpBrowser *>();
        EXPECT_TRUE(page->toPlainText().startsWith(row.title)) << row.context;
    }
}

TEST(myHelp, OpensTheDefaultPage)
{
    Asker asker;
    asker.help.ShowHelp(HH_HELP_CONTEXT, 2, &asker.window);
    asker.help.ShowHelp(HH_DISPLAY_TOPIC, 0, &asker.window);
    EXPECT_EQ(asker.Title(), u"Welcome to Vellumo Designer - Vellumo Designer Help"_s);
}

TEST(myHelp, HasTheNumbersOfItsCommands)
{
    EXPECT_EQ(HH_DISPLAY_TOPIC, 0);
    EXPECT_EQ(HH_HELP_CONTEXT, 15);
    EXPECT_EQ(HH_CLOSE_ALL, 18);
    Asker asker;
    asker.help.ShowHelp(17, 1, &asker.window);
    EXPECT_TRUE(HelpWindows().isEmpty()) << "a command that it does not know";
}

TEST(myHelp, ClosesEveryWindowThatItOpened)
{
    Asker asker;
    QWidget another;
    another.show();
    asker.help.ShowHelp(HH_DISPLAY_TOPIC, 0, &asker.window);
    asker.help.ShowHelp(HH_HELP_CONTEXT, 2, &another);
    asker.help.ShowHelp(HH_HELP_CONTEXT, 3, nullptr);
    EXPECT_EQ(HelpWindows().size(), 3);
    asker.help.ShowHelp(HH_CLOSE_ALL, 0, &asker.window);
    EXPECT_TRUE(HelpWindows().isEmpty());

    asker.help.ShowHelp(HH_CLOSE_ALL, 0, &asker.window);
    asker.help.ShowHelp(HH_DISPLAY_TOPIC, 0, &asker.window);
    EXPECT_EQ(HelpWindows().size(), 1);
    asker.help.CloseWindows();
    EXPECT_TRUE(HelpWindows().isEmpty());
}

TEST(myHelp, TakesItsWindowsAlong)
{
    {
        Asker asker;
        asker.help.ShowHelp(HH_DISPLAY_TOPIC, 0, nullptr);
        EXPECT_EQ(HelpWindows().size(), 1);
    }
    EXPECT_TRUE(HelpWindows().isEmpty());

    Asker asker;
    auto owner = std::make_unique<QWidget>();
    owner->show();
    asker.help.ShowHelp(HH_DISPLAY_TOPIC, 0, owner.get());
    owner.reset();
    EXPECT_TRUE(HelpWindows().isEmpty());
    asker.help.ShowHelp(HH_CLOSE_ALL, 0, nullptr);
}

TEST(myHelp, SaysThatThereIsNoHelpFile)
{
    Asker asker;
    asker.environment.helpFile.clear();
    const PromptScript script({u"OK"_s});
    asker.help.ShowHelp(HH_HELP_CONTEXT, 1, &asker.window);
    ASSERT_EQ(script.boxes().size(), 1u);
    const SeenBox &box = script.boxes().front();
    EXPECT_EQ(box.text, u"Help File Not Found!"_s);
    EXPECT_EQ(box.icon, QMessageBox::Information);
    EXPECT_EQ(box.buttons, QStringList{u"OK"_s});
    EXPECT_TRUE(HelpWindows().isEmpty());
}

TEST(myHelp, DescribesAnAbsentOrDamagedFile)
{
    Asker asker;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Vellumo_Help.chm"_s);
    asker.environment.helpFile = path;
    const PromptScript script({u"OK"_s, u"OK"_s});
    asker.help.ShowHelp(HH_HELP_CONTEXT, 1, &asker.window);
    ASSERT_TRUE(WriteBytes(path, BytesOf(QStringLiteral(HELP_FILE)).first(5000)));
    asker.help.ShowHelp(HH_DISPLAY_TOPIC, 0, &asker.window);

    ASSERT_EQ(script.boxes().size(), 2u);
    EXPECT_EQ(script.boxes()[0].text, path + u": No such file or directory"_s);
    EXPECT_EQ(script.boxes()[1].text, path + u": This is not a help file, or it is damaged."_s);
    for (const SeenBox &box : script.boxes()) {
        EXPECT_EQ(box.icon, QMessageBox::NoIcon);
        EXPECT_EQ(box.buttons, QStringList{u"OK"_s});
    }
    EXPECT_TRUE(HelpWindows().isEmpty());
}

TEST(myHelp, ShowsTheFileOfAnotherCompiler)
{
    Asker asker;
    asker.environment.helpFile = DataFile(u"help/compressed.chm"_s);
    asker.help.ShowHelp(HH_HELP_CONTEXT, 2, &asker.window);
    EXPECT_EQ(asker.Title(), u"Page 2 - Compressed"_s);
}

TEST(myHelp, CanBeUsedBesideAModalWindow)
{
    Asker asker;
    asker.help.ShowHelp(HH_DISPLAY_TOPIC, 0, &asker.window);
    const QPointer<HelpWindow> early = HelpWindows().value(0);

    QDialog wizard(&asker.window);
    QTimer::singleShot(0, &wizard, [&] {
        ASSERT_EQ(QApplication::activeModalWidget(), &wizard);
        asker.help.ShowHelp(HH_HELP_CONTEXT, 15, &asker.window);
        QList<HelpWindow *> windows = HelpWindows();
        windows.removeAll(early);
        ASSERT_EQ(windows.size(), 1);
        HelpWindow *help = windows.front();
        EXPECT_FALSE(help->isModal());

        // Sent to the native window, as the window system does, a key is lost where it is blocked.
        QTest::keyClick(early->windowHandle(), Qt::Key_Escape);
        EXPECT_TRUE(early->isVisible()) << "the dialog blocks what is not its own";
        QTest::mouseClick(help->windowHandle(), Qt::LeftButton, {},
                          help->findChild<QWidget *>(u"cmdHome"_s)->geometry().center());
        EXPECT_EQ(help->windowTitle(), u"Welcome to Vellumo Designer - Vellumo Designer Help"_s);
        QApplication::setActiveWindow(help);
        QTest::keyClick(help->windowHandle(), Qt::Key_F, Qt::ControlModifier);
        EXPECT_TRUE(help->findChild<QLineEdit *>(u"txtFind"_s)->isVisible());
        wizard.close();
    });
    wizard.exec();
    EXPECT_TRUE(early && early->isVisible());
}

} // namespace
