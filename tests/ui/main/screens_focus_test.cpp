// Where the focus is, on each of the screens.
#include "ui/common/scroll_page.h"
#include "ui/common/step_page.h"
#include "ui/main/window_looks.h"

#include <QHeaderView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

void ExpectFocusSeen(const QWidget &window)
{
    for (auto *widget : ShownWidgets<QWidget>(window)) {
        if (!(widget->focusPolicy() & Qt::TabFocus) || !widget->isEnabled() || widget->focusProxy())
            continue;
        const auto *button = qobject_cast<const QPushButton *>(widget);
        if (button && button->isDefault()) // has the look of it also while nothing has the focus
            continue;
        if (auto *box = qobject_cast<QPlainTextEdit *>(widget)) // not by its caret alone
            box->setCursorWidth(0);
        widget->setFocus(Qt::TabFocusReason);
        QApplication::processEvents();
        const QImage with = widget->grab().toImage();
        widget->clearFocus();
        QApplication::processEvents();
        EXPECT_TRUE(with != widget->grab().toImage()) << Name(*widget);
    }
}

TEST(Screens, ShowTheFocus)
{
    ShowEveryWindow([](QWidget &window) { ExpectFocusSeen(window); });
}

/// The least height in which any of the pages around it shows a widget.
int RoomFor(const QWidget &widget)
{
    int room = widget.window()->height();
    for (const QWidget *above = &widget; (above = above->parentWidget());)
        if (const auto *page = qobject_cast<const ScrollPage *>(above))
            room = std::min(room, page->viewport()->height());
    return room;
}

/// All of what has the focus is seen, or as much as there is room for; of the list its header and
/// its current row, wherever both have room.
void ExpectFocusInView(const QWidget &window)
{
    constexpr int frames = 4; // pixels
    const QWidget *focus = window.focusWidget();
    ASSERT_TRUE(focus);
    const QRect seen = focus->visibleRegion().boundingRect();
    const int room = RoomFor(*focus);
    EXPECT_GE(seen.height(), std::min(focus->height(), room) - frames) << Name(*focus);
    const auto *grid = qobject_cast<const QTableView *>(focus);
    if (!grid)
        return;
    const QRect row = grid->visualRect(grid->currentIndex()).translated(grid->viewport()->pos());
    EXPECT_GE(seen.bottom(), std::min(row.bottom(), room - frames)) << Name(*focus);
    EXPECT_TRUE(row.bottom() >= room || seen.top() == 0) << Name(*focus);
}

TEST(Screens, ArriveAtStepsWithTheFocusInView)
{
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft})
        for (const int points : {9, 13, 18, 24}) {
            const Desktop desktop(points, direction);
            Designer designer(sample);
            SettleWindows();
            for (int visit = 1; visit <= 8; ++visit) {
                SCOPED_TRACE(std::to_string(points) + " points, direction " +
                             std::to_string(direction) + ", step " +
                             std::to_string(designer.Step()) + ", visit " + std::to_string(visit));
                ExpectFocusInView(designer.window);
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
                SettleWindows();
            }
        }
}

/// As far as any window has that much room at all.
TEST(Screens, ShowWhatAStepHasToShow)
{
    for (const int points : {9, 18}) {
        const Desktop desktop(points, Qt::LeftToRight);
        Designer designer(sample);
        for (int index = 0; index < 4; ++index) {
            designer.Find<QTabWidget>("SSTab1")->setCurrentIndex(index);
            SettleWindows();
            for (const auto *step : designer.window.findChildren<StepPage *>())
                if (step->isVisible()) {
                    const QWidget *view = step->findChild<ScrollPage *>()->viewport();
                    EXPECT_GE(view->visibleRegion().boundingRect().height(),
                              std::min(step->LeastView(), designer.window.height() / 4))
                        << Name(*step) << ", " << points << " points";
                }
        }
    }
}

} // namespace
