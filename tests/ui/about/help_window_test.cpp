#include "ui/about/help_window.h"

#include "help/compiler/archive_writer.h"
#include "support/files.h"
#include "support/print.h"
#include "ui/about/help_browser.h"
#include "ui/common/contrast.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTreeWidget>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

HelpFile Opened(const QString &path)
{
    auto file = HelpFile::Open(path);
    if (!file)
        throw std::runtime_error(Describe(file.error()).toStdString());
    return std::move(*file);
}

/// A help window on screen, on its first page, and what a user does with it.
struct Viewer {
    explicit Viewer(const QString &path = QStringLiteral(HELP_FILE))
        : window(
              Opened(path), [this](const QString &target) { opened += target; }, nullptr),
          page(window.findChild<HelpBrowser *>(u"txtPage"_s)),
          contents(window.findChild<QTreeWidget *>(u"treContents"_s)),
          find(window.findChild<QLineEdit *>(u"txtFind"_s))
    {
        window.ShowPage(Opened(path).DefaultPage());
        window.show();
        QApplication::setActiveWindow(&window);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget *focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : &window, Qt::Key(key), modifiers);
    }

    /// Clicks on the link that the page has under these words.
    void ClickLink(const QString &words)
    {
        QTextCursor cursor = page->document()->find(words);
        ASSERT_FALSE(cursor.isNull()) << words.toStdString();
        cursor.setPosition(cursor.selectionStart() + 1);
        page->setTextCursor(cursor);
        page->ensureCursorVisible();
        QTest::mouseClick(page->viewport(), Qt::LeftButton, {}, page->cursorRect(cursor).center());
    }

    QString Found() const { return page->textCursor().selectedText(); }

    QStringList opened;
    HelpWindow window;
    HelpBrowser *page;
    QTreeWidget *contents;
    QLineEdit *find;
};

const QString welcome = u"Welcome to Vellumo Designer - Vellumo Designer Help"_s;
const QString limits = u"Limits - Vellumo Designer Help"_s;
const QString naming = u"Naming your Vellsheet - Vellumo Designer Help"_s;

TEST(HelpWindow, GoesBackAndForwardByKeyboard)
{
    Viewer viewer;
    EXPECT_EQ(viewer.window.windowTitle(), welcome);
    viewer.Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(viewer.window.windowTitle(), welcome) << "nothing lies behind";

    viewer.ClickLink(u"Limits"_s);
    EXPECT_EQ(viewer.window.windowTitle(), limits);
    viewer.ClickLink(u"Name"_s);
    EXPECT_EQ(viewer.window.windowTitle(), naming);
    viewer.Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(viewer.window.windowTitle(), limits);
    viewer.Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(viewer.window.windowTitle(), welcome);
    viewer.Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(viewer.window.windowTitle(), limits);
    viewer.Press(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(viewer.window.windowTitle(), welcome);
}

TEST(HelpWindow, ShowsWhatIsChosenInTheContents)
{
    Viewer viewer;
    ASSERT_TRUE(viewer.contents->currentItem());
    EXPECT_EQ(viewer.contents->currentItem()->text(0), u"Welcome to Vellumo Designer"_s);

    auto *entry = viewer.contents->findItems(u"Limits"_s, Qt::MatchRecursive).value(0);
    ASSERT_TRUE(entry);
    viewer.contents->scrollToItem(entry);
    QTest::mouseClick(viewer.contents->viewport(), Qt::LeftButton, {},
                      viewer.contents->visualItemRect(entry).center());
    EXPECT_EQ(viewer.window.windowTitle(), limits);

    viewer.contents->setFocus();
    QTest::keyClick(viewer.contents, Qt::Key_Down);
    QTest::keyClick(viewer.contents, Qt::Key_Return);
    EXPECT_EQ(viewer.window.windowTitle(), u"Working with the keyboard - Vellumo Designer Help"_s);

    viewer.ClickLink(u"Everything"_s);
    viewer.window.ShowPage(u"wizard.html#title"_s);
    EXPECT_EQ(viewer.contents->currentItem()->text(0), u"Question wizard"_s);
}

TEST(HelpWindow, FindsWordsOnThePage)
{
    Viewer viewer;
    viewer.window.ShowPage(u"types.html"_s);
    EXPECT_FALSE(viewer.find->isVisible());
    viewer.Press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(viewer.find->isVisible());
    EXPECT_TRUE(viewer.find->hasFocus());

    QTest::keyClicks(viewer.find, u"stylus"_s);
    EXPECT_EQ(viewer.Found(), u"stylus"_s);
    const int first = viewer.page->textCursor().position();
    viewer.Press(Qt::Key_F3);
    const int second = viewer.page->textCursor().position();
    EXPECT_GT(second, first);
    viewer.Press(Qt::Key_F3);
    EXPECT_EQ(viewer.page->textCursor().position(), first) << "begins again at the top";
    viewer.Press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(viewer.page->textCursor().position(), second) << "goes on at the bottom";
    viewer.Press(Qt::Key_Return);
    EXPECT_EQ(viewer.page->textCursor().position(), first);

    const auto *result = viewer.window.findChild<QLabel *>(u"lblFound"_s);
    EXPECT_EQ(result->text(), QString());
    QTest::keyClicks(viewer.find, u"es"_s);
    EXPECT_EQ(result->text(), u"Not on this page"_s);
    QTest::keyClick(viewer.find, Qt::Key_Backspace);
    QTest::keyClick(viewer.find, Qt::Key_Backspace);
    EXPECT_EQ(result->text(), QString());
    EXPECT_EQ(viewer.Found(), u"stylus"_s);
}

TEST(HelpWindow, ClosesTheFindBarAndThenItselfWithEscape)
{
    Viewer viewer;
    viewer.Press(Qt::Key_F3);
    EXPECT_TRUE(viewer.find->isVisible()) << "nothing to find yet";
    viewer.Press(Qt::Key_Escape);
    EXPECT_FALSE(viewer.find->isVisible());
    EXPECT_TRUE(viewer.window.isVisible());
    EXPECT_TRUE(viewer.page->hasFocus());
    viewer.Press(Qt::Key_Escape);
    EXPECT_FALSE(viewer.window.isVisible());
}

TEST(HelpWindow, HandsWebAddressesOn)
{
    Viewer viewer;
    viewer.window.ShowPage(u"install.html"_s);
    const QString title = viewer.window.windowTitle();
    viewer.ClickLink(u"CloudpilotEmu is"_s);
    EXPECT_EQ(viewer.opened, QStringList{u"https://cloudpilot-emu.github.io"_s});
    EXPECT_EQ(viewer.window.windowTitle(), title);
}

TEST(HelpWindow, WritesLinksLegibly)
{
    Viewer viewer;
    for (const QColor &ground :
         {QColor(255, 255, 255), QColor(61, 61, 61), QColor(127, 127, 127)}) {
        QPalette palette = viewer.page->palette();
        palette.setColor(QPalette::Base, ground);
        viewer.page->setPalette(palette);
        int links = 0;
        for (QTextBlock block = viewer.page->document()->begin(); block.isValid();
             block = block.next())
            for (const auto &range : block.textFormats())
                if (range.format.isAnchor() && !range.format.anchorHref().isEmpty()) {
                    ++links;
                    EXPECT_GE(Contrast(range.format.foreground().color(), ground), textContrast);
                }
        EXPECT_GT(links, 3);
    }
}

TEST(HelpWindow, ShowsThePicturesOfAPage)
{
    Viewer viewer;
    for (int number = 103; number <= 112; ++number) {
        const QVariant picture = viewer.page->loadResource(
            QTextDocument::ImageResource, QUrl(u"help:/pictures/%1.png"_s.arg(number)));
        EXPECT_EQ(picture.value<QImage>().size(), QSize(320, 320)) << number;
    }
}

/// A page that tries to lead out of its file.
TEST(HelpWindow, TakesNothingFromOutsideItsFile)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"x.chm"_s), secret = folder.filePath(u"secret.html"_s);
    ASSERT_TRUE(WriteBytes(secret, "<title>Secret</title>"));
    const QByteArray system = QByteArray("\x03\0\0\0\x02\0\x07\0", 8) + "a.html" + '\0';
    const QByteArray page = "<title>A</title><p><a href=\"file://" + secret.toUtf8() +
                            "\">outside</a> <a href=\"ms-its:x.chm::/b.html\">inside</a> "
                            "<a href=\"javascript:x()\">script</a> "
                            "<a href=\"gone.html\">gone</a></p>";
    ASSERT_TRUE(WriteBytes(
        path,
        WriteArchive({{"/#SYSTEM", system}, {"/a.html", page}, {"/b.html", "<title>B</title>"}})));
    Viewer viewer(path);
    EXPECT_EQ(viewer.window.windowTitle(), u"A - "_s);
    EXPECT_FALSE(viewer.contents->isVisible()) << "it has none";
    viewer.ClickLink(u"outside"_s);
    viewer.ClickLink(u"script"_s);
    EXPECT_EQ(viewer.window.windowTitle(), u"A - "_s);
    EXPECT_TRUE(viewer.opened.isEmpty());
    EXPECT_TRUE(viewer.page->loadResource(QTextDocument::HtmlResource, QUrl::fromLocalFile(secret))
                    .isNull());

    viewer.ClickLink(u"gone"_s);
    EXPECT_EQ(viewer.page->toPlainText(), u"The help has no page gone.html."_s);
    viewer.Press(Qt::Key_Left, Qt::AltModifier);
    viewer.ClickLink(u"inside"_s);
    EXPECT_EQ(viewer.window.windowTitle(), u"B - "_s);
}

} // namespace
