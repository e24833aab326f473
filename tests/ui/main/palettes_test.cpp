// The windows in light and dark colours: what is written, drawn and focused stands out.
#include "support/print.h"
#include "ui/common/contrast.h"
#include "ui/common/link_label.h"
#include "ui/support/every_window.h"
#include "ui/support/palettes.h"

#include <QStyle>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// How much of what is painted stands out from the ground, from 0 to 1.
double PartSeen(const QImage &picture, const QColor &ground)
{
    int painted = 0, seen = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (const QColor colour = picture.pixelColor(x, y); colour.alpha() == 255) {
                ++painted;
                seen += Contrast(colour, ground) >= pictureContrast;
            }
    return double(seen) / std::max(painted, 1);
}

/// Against what is painted below them, which no word of theirs reaches at its corner.
void ExpectLinksLegible(const QWidget &window)
{
    const QImage picture = const_cast<QWidget &>(window).grab().toImage();
    for (const auto *link : window.findChildren<LinkLabel *>()) {
        const QPoint corner = link->mapTo(&window, QPoint());
        if (!link->isVisible() || !picture.rect().contains(corner))
            continue;
        EXPECT_GE(Contrast(link->Ink(), picture.pixelColor(corner)), textContrast)
            << link->objectName().toStdString();
    }
}

void ExpectIconsSeen(const QWidget &window)
{
    constexpr double enough = 0.25;
    for (const auto *button : window.findChildren<QAbstractButton *>()) {
        if (button->icon().isNull() || !button->isEnabled() || !button->isVisible())
            continue;
        const QImage icon = button->icon().pixmap(button->iconSize()).toImage();
        for (const auto role : {QPalette::Window, QPalette::Button})
            EXPECT_GE(PartSeen(icon, button->palette().color(role)), enough)
                << button->objectName().toStdString();
    }
}

/// A control that gets the focus is painted in another way, and some of that stands out.
void ExpectFocusLegible(const QWidget &window)
{
    for (const char *name : {"txtAppDesc", "lstError", "txtWiz3_1", "txtQuestion", "txtPage"}) {
        auto *widget = window.findChild<QWidget *>(QLatin1StringView(name));
        if (!widget || !widget->isVisible())
            continue;
        widget->setFocus(Qt::TabFocusReason);
        QApplication::processEvents();
        const QPoint onLine(1, widget->height() / 2);
        const QColor line = widget->grab().toImage().pixelColor(onLine);
        EXPECT_GE(Contrast(line, widget->palette().color(QPalette::Base)), pictureContrast)
            << name << " has a line of " << line.name().toStdString();
    }
}

void ExpectStandsOut(const QPalette &palette)
{
    const QPalette before = QApplication::palette();
    QApplication::setPalette(palette);
    ShowEveryWindow([](const QWidget &window) {
        ExpectLinksLegible(window);
        ExpectIconsSeen(window);
        ExpectFocusLegible(window);
    });
    QApplication::setPalette(before);
}

TEST(Palettes, OfALightDesktop)
{
    ExpectStandsOut(QApplication::style()->standardPalette());
}

TEST(Palettes, OfADarkDesktop)
{
    ExpectStandsOut(DarkPalette());
}

TEST(Palettes, OfHighContrast)
{
    ExpectStandsOut(HighContrastPalette());
}

} // namespace
