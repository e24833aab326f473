#include "ui/questions/wizard_desk.h"

#include <QPixmap>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// The colour of a row's ground, behind its text.
QColor GroundOf(const WizardDesk &desk, int row)
{
    QListWidget *types = desk.Types();
    const QRect place = types->visualRect(types->model()->index(row, 0));
    const QImage picture = types->viewport()->grab().toImage();
    return picture.pixelColor(place.right() - 30, place.center().y());
}

TEST(WizardTypes, AreDrawnAsSelectedOnlyWhereOneIs)
{
    WizardDesk desk;
    desk.Open();
    EXPECT_EQ(desk.Focus(), desk.Types());
    EXPECT_TRUE(desk.Types()->selectedItems().isEmpty());
    EXPECT_EQ(GroundOf(desk, 0), desk.Types()->palette().color(QPalette::Base));
    QTest::keyClick(desk.Types(), Qt::Key_Down);
    EXPECT_EQ(desk.Types()->selectedItems().size(), 1);
    EXPECT_EQ(GroundOf(desk, 0), desk.Types()->palette().color(QPalette::Base));
    EXPECT_NE(GroundOf(desk, 1), desk.Types()->palette().color(QPalette::Base));
}

} // namespace
