// Boxes on screens of many sizes, with small and large text, in both directions. A process has one
// screen and one scale, so this is run once for each of them: vellumo_on_screens.
#include "ui/common/prompt_box.h"

#include "support/print.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QString RefusedRows()
{
    QStringList rows{u"Not added:"_s};
    for (int row = 1; row <= 10; ++row)
        rows +=
            u"Line %1: \"Item number %1 of the list\" is longer than an item can be."_s.arg(row);
    return rows.join(u'\n');
}

struct Words {
    QString text;
    QString below = {};
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
};

QList<Words> Examples()
{
    const QString rescue = u"SiteVisit.vmp was not saved when Vellumo Designer ended. "
                           "Do you want to open the rescued copy?"_s;
    return {{u"Sure?"_s, {}, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel},
            {RefusedRows()},
            {rescue, u"The copy was made at 2026-01-31 12:34:56.\n/home/user/SiteVisit.vmp"_s,
             QMessageBox::Yes | QMessageBox::No},
            {u"Your Vellsheet could not be saved."_s, u"/"_s + QString(200, u'm') + u".vmp"_s}};
}

QScrollArea &PageOf(const PromptBox &box)
{
    return *box.findChild<QScrollArea *>();
}

void ExpectFits(const PromptBox &box)
{
    EXPECT_TRUE(box.screen()->availableGeometry().contains(box.frameGeometry()));
    for (const QAbstractButton *button : box.buttons()) {
        EXPECT_EQ(button->visibleRegion(), QRegion(button->rect())) << button->text().toStdString();
        EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
    }
}

/// Whole, or there is a bar to bring the rest into view; then the box has all of the screen.
void ExpectLegible(const PromptBox &box)
{
    const QScrollArea &page = PageOf(box);
    const QSize room = page.viewport()->size(), text = page.widget()->size();
    EXPECT_TRUE(text.height() <= room.height() || page.verticalScrollBar()->isVisible());
    EXPECT_TRUE(text.width() <= room.width() || page.horizontalScrollBar()->isVisible());
    const bool scrolls = page.verticalScrollBar()->isVisible();
    EXPECT_TRUE(!scrolls || box.frameGeometry().width() == box.screen()->availableSize().width());
    EXPECT_EQ(page.focusPolicy() == Qt::TabFocus,
              scrolls || page.horizontalScrollBar()->isVisible());
    for (const QLabel *label : page.findChildren<QLabel *>()) {
        EXPECT_GE(label->width(), label->minimumSizeHint().width()) << label->text().toStdString();
        EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    }
}

/// Calls the function with each box while it is up.
template <typename Look> void ShowExamples(const Look &look)
{
    for (const Words &words : Examples()) {
        SCOPED_TRACE(words.text.left(20).toStdString());
        PromptBox box(QMessageBox::Question, u"Vellumo Designer"_s, words.text, words.below,
                      words.buttons, nullptr);
        box.show();
        for (int turn = 0; turn < 8; ++turn)
            QApplication::processEvents();
        look(box);
    }
}

TEST(PromptBox, FitsItsScreen)
{
    const QFont usual = QApplication::font();
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft})
        for (const int points : {8, 9, 13, 18, 24}) {
            SCOPED_TRACE(std::to_string(points) + " points, " + std::to_string(direction));
            QFont font = usual;
            font.setPointSize(points);
            QApplication::setFont(font);
            QApplication::setLayoutDirection(direction);
            ShowExamples([](const PromptBox &box) {
                ExpectFits(box);
                ExpectLegible(box);
            });
        }
    QApplication::setFont(usual);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

/// Counts what an idle program would be busy with.
class LayoutCount : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::LayoutRequest;
        return false;
    }

    int count = 0;
};

TEST(PromptBox, ComesToRest)
{
    ShowExamples([](const PromptBox &) {
        LayoutCount layouts;
        qApp->installEventFilter(&layouts);
        QApplication::processEvents();
        QApplication::processEvents();
        EXPECT_EQ(layouts.count, 0);
    });
}

/// The sizes that a box has had.
class Sizes : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Resize)
            all += static_cast<QResizeEvent *>(event)->size();
        return false;
    }

    QList<QSize> all;
};

/// A window manager that was told of another one first may come back to it.
TEST(PromptBox, IsOfOneSizeFromTheStart)
{
    PromptBox box(QMessageBox::Question, u"Vellumo Designer"_s, u"Sure?"_s, u"It is final."_s,
                  QMessageBox::Yes | QMessageBox::No, nullptr);
    Sizes sizes;
    box.installEventFilter(&sizes);
    box.show();
    QTest::qWait(50);
    EXPECT_EQ(sizes.all, QList<QSize>(sizes.all.size(), box.size()));
    EXPECT_FALSE(sizes.all.isEmpty());
}

/// What a window manager answers late, with the frames that it makes, changes nothing.
TEST(PromptBox, KeepsItsSizeInAFrame)
{
    constexpr int frame = 8; // pixels
    if (QGuiApplication::platformName() != u"xcb"_s)
        GTEST_SKIP() << "no window manager";
    ShowExamples([](const PromptBox &box) {
        QTest::qWait(250); // milliseconds
        EXPECT_GE(box.width(), box.maximumWidth() - frame);
        EXPECT_GE(box.height(), box.maximumHeight() - frame);
        const QRect room = box.screen()->availableGeometry();
        EXPECT_TRUE(room.contains(box.frameGeometry()));
        EXPECT_TRUE(!PageOf(box).verticalScrollBar()->isVisible() ||
                    box.height() > room.height() - 2 * box.fontMetrics().lineSpacing());
    });
}

TEST(PromptBox, TurnsThePagesOfItsTextFromAButton)
{
    PromptBox box(QMessageBox::Question, {}, RefusedRows().repeated(20), {}, QMessageBox::Ok,
                  nullptr);
    box.show();
    QApplication::setActiveWindow(&box);
    QApplication::processEvents();
    const QScrollBar *bar = PageOf(box).verticalScrollBar();
    ASSERT_TRUE(bar->isVisible());
    QAbstractButton *ok = box.button(QMessageBox::Ok);
    QTest::keyClick(ok, Qt::Key_PageDown);
    EXPECT_GT(bar->value(), 0);
    QTest::keyClick(ok, Qt::Key_PageUp);
    EXPECT_EQ(bar->value(), 0);
}

} // namespace
