// The windows on screens of many sizes, with small and large text, in both directions. A process
// has one screen and one scale, so this is run once for each of them: vellumo_on_screens.
#include "model/question_types.h"
#include "ui/main/window_looks.h"

#include <QMenu>
#include <QScreen>
#include <QScrollArea>
#include <QTableView>
#include <QWindow>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// Where the screen has room for all of it, nothing of the wizard scrolls.
TEST(Screens, HoldTheWizardWhole)
{
    const Desktop desktop(9, Qt::LeftToRight);
    if (QGuiApplication::primaryScreen()->size().height() < 600)
        GTEST_SKIP() << "it has to scroll";
    Designer designer(sample);
    for (const QuestionType &type : questionTypes) {
        SCOPED_TRACE(type.name.latin1());
        frmWizard wizard(const_cast<ProjectDocument &>(designer.window.document()), nullptr);
        wizard.show();
        auto *types = wizard.findChild<QListWidget *>(u"lstWiz1_1"_s);
        types->setCurrentItem(types->findItems(type.name, Qt::MatchExactly).first());
        wizard.findChild<QPlainTextEdit *>(u"txtWiz3_1"_s)->setPlainText(u"Which?"_s);
        for (int step = 1; step <= (type.items ? 5 : 4); ++step) {
            QApplication::processEvents();
            EXPECT_FALSE(
                wizard.findChild<QScrollArea *>(u"scrollArea"_s)->verticalScrollBar()->isVisible())
                << step;
            wizard.findChild<QAbstractButton *>(u"cmdNav_3"_s)->click();
        }
    }
}

/// On a screen of any size, step 2 has the window that it is in.
TEST(Screens, FillStepTwo)
{
    Designer designer(sample);
    const QSize size = designer.window.size();
    designer.Find<QTabWidget>("SSTab1")->setCurrentIndex(1);
    SettleWindows();
    designer.window.resize(size * 2 / 3);
    SettleWindows();
    designer.window.resize(size);
    SettleWindows();
    const auto *content = designer.Find<QWidget>("content");
    const int room = designer.Find<QScrollArea>("scrollArea")->viewport()->width();
    EXPECT_EQ(content->width(), std::max(content->minimumSizeHint().width(), room));
    EXPECT_EQ(
        designer.Find<QTableView>("DataGrid1")->findChildren<QObject *>(u"questionWidth"_s).size(),
        1);
}

/// A window manager tells late how wide its frames are.
TEST(Screens, HoldTheFrames)
{
    ShowEveryWindow([](const QWidget &window) {
        const bool isFramed = QGuiApplication::platformName() == u"xcb"_s &&
                              !(window.windowFlags() & Qt::FramelessWindowHint);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return (!isFramed || !window.windowHandle()->frameMargins().isNull()) &&
                   window.screen()->availableGeometry().contains(window.frameGeometry());
        })) << Name(window);
        ExpectOnScreen(window);
    });
}

/// Where the screen has room for it, nothing is to be scrolled sideways, however large the text.
TEST(Screens, GrowWithTheText)
{
    const QSize room = QGuiApplication::primaryScreen()->size();
    const Desktop desktop(24, Qt::LeftToRight);
    if (room.width() < 1900 || room.height() < 1000)
        GTEST_SKIP() << "there is no such room";
    ShowEveryWindow([](const QWidget &window) {
        for (const auto *bar : window.findChildren<QScrollBar *>())
            EXPECT_FALSE(bar->isVisible() && bar->orientation() == Qt::Horizontal)
                << Name(*bar->parentWidget()->parentWidget());
    });
}

/// What an entry says does not become more when the menu is wider.
void ExpectWholeEntries(QMenu &menu)
{
    constexpr int more = 300, frame = 8; // pixels
    for (QAction *entry : menu.actions()) {
        entry->setShortcuts({});                  // which go on to stand at the other end
        entry->setVisible(!entry->isSeparator()); // whose ends fall between pixels
    }
    menu.popup({});
    const QImage shown = menu.grab().toImage();
    const int width = menu.width() - frame;
    menu.setMinimumWidth(menu.width() + more);
    menu.adjustSize();
    const QRect entries = {0, 0, qRound(width * shown.devicePixelRatio()), shown.height()};
    EXPECT_EQ(shown.copy(entries), menu.grab().toImage().copy(entries)) << Name(menu);
    menu.hide();
}

TEST(Screens, HoldTheMenus)
{
    for (const int points : {8, 9, 13, 18, 24, 36}) {
        SCOPED_TRACE(std::to_string(points) + " points");
        const Desktop desktop(points, Qt::LeftToRight);
        const Designer designer(sample);
        for (const char *name : {"mnuFile", "mnuHelp"}) {
            auto *menu = designer.Find<QMenu>(name);
            if (menu->sizeHint().width() < QGuiApplication::primaryScreen()->size().width())
                ExpectWholeEntries(*menu);
        }
    }
}

TEST(Screens, HoldEveryWindow)
{
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft})
        for (const int points : {8, 9, 13, 18, 24}) {
            SCOPED_TRACE(std::to_string(points) + " points, direction " +
                         std::to_string(direction));
            const Desktop desktop(points, direction);
            ShowEveryWindow([](const QWidget &window) { ExpectLooksRight(window); });
        }
}

} // namespace
