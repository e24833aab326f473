// A window that is too low for all that it has keeps the buttons that lead on in view.
#include "support/print.h"
#include "ui/support/designer.h"
#include "ui/support/every_window.h"

#include <QPushButton>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

bool IsInView(const QWidget &widget)
{
    return widget.visibleRegion() == QRegion(widget.rect());
}

TEST(LowWindow, LeadsFromStepToStep)
{
    Designer designer(sample);
    designer.window.resize(300, 170);
    for (const char *next : {"cmd1_Next", "cmd2_Next", "cmd3_Next"}) {
        SettleWindows();
        EXPECT_TRUE(IsInView(*designer.Find<QPushButton>(next))) << next;
        designer.Click(next);
    }
    EXPECT_EQ(designer.Step(), 4);
    SettleWindows();
    EXPECT_TRUE(IsInView(*designer.Find<QPushButton>("cmd4_back")));
    EXPECT_FALSE(designer.Find<QPushButton>("cmd3_Next")->isVisible());
}

TEST(LowWindow, ShowsItsButtonsAtEverySize)
{
    Designer designer(sample);
    for (const int width : {200, 290, 420, 640})
        for (int height = 140; height < 460; height += 40) {
            designer.window.resize(width, height);
            for (int step = 1; step <= 4; ++step) {
                designer.Find<QTabWidget>("SSTab1")->setCurrentIndex(step - 1);
                SettleWindows();
                const auto back = "cmd" + std::to_string(step) + (step == 4 ? "_back" : "_Back");
                EXPECT_TRUE(IsInView(*designer.Find<QPushButton>(back.c_str())))
                    << back << " at " << width << "x" << height;
            }
        }
}

TEST(LowWindow, KeepsTheFocusOnAButton)
{
    Designer designer;
    auto *next = designer.Find<QPushButton>("cmd1_Next");
    const QSize before = next->size();
    const QWidget *home = next->parentWidget()->parentWidget();
    next->setFocus();
    designer.window.resize(300, 170);
    SettleWindows();
    EXPECT_TRUE(next->hasFocus());
    EXPECT_NE(next->parentWidget()->parentWidget(), home);

    designer.window.resize(860, 620);
    SettleWindows();
    EXPECT_TRUE(next->hasFocus());
    EXPECT_EQ(next->parentWidget()->parentWidget(), home);
    EXPECT_EQ(next->size(), before);
}

TEST(LowWindow, MakesItsButtonsSmaller)
{
    Designer designer;
    auto *next = designer.Find<QPushButton>("cmd1_Next");
    QFont large = QApplication::font();
    large.setPointSize(24);
    designer.window.setFont(large);
    SettleWindows();
    EXPECT_EQ(next->font().pointSize(), 24);
    designer.window.resize(200, 160);
    SettleWindows();
    EXPECT_LT(next->font().pointSize(), 24);
    EXPECT_LE(next->parentWidget()->height(), 64);
    designer.window.resize(860, 620);
    SettleWindows();
    EXPECT_EQ(next->font().pointSize(), 24);
}

} // namespace
