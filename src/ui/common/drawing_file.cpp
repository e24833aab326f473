#include "ui/common/drawing_file.h"

#include "ui/common/contrast.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr int largestSign = 32; // pixels

std::vector<QColor> InksIn(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    static const QRegularExpression ink(u"(?:fill|stroke)=\"(#[0-9a-f]{6})\""_s);
    std::vector<QColor> inks;
    for (const auto &found : ink.globalMatch(QString::fromUtf8(file.readAll())))
        if (const QColor colour(found.captured(1)); colour != QColor(Qt::white))
            inks.push_back(colour);
    return inks;
}

/// The picture in one colour; what is white in it lets the ground through.
QImage Tinted(QImage image, const QColor &colour)
{
    constexpr int lightest = 255, lightens = 160;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            const int light = std::min({pixel.red(), pixel.green(), pixel.blue()});
            const int white = std::max(0, light - lightens);
            QColor tint = colour;
            tint.setAlpha(pixel.alpha() * (lightest - lightens - white) / (lightest - lightens));
            image.setPixelColor(x, y, tint);
        }
    return image;
}

QImage StandingOut(const QImage &image, const DrawingFile &drawing)
{
    const QPalette palette = QGuiApplication::palette();
    const QColor window = palette.color(QPalette::Window), button = palette.color(QPalette::Button);
    const bool stands = std::ranges::all_of(drawing.inks, [&](const QColor &ink) {
        return LeastContrast(ink, {window, button}) >= pictureContrast;
    });
    return stands ? image
                  : Tinted(image, Legible(palette.color(QPalette::ButtonText), {window, button},
                                          pictureContrast));
}

} // namespace

DrawingFile::DrawingFile(const QString &file) : path(file), renderer(file), inks(InksIn(file)) {}

QPixmap Drawn(DrawingFile &drawing, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.renderer.render(&painter);
    painter.end();
    const bool isSign = drawing.renderer.defaultSize().width() <= largestSign;
    if (isSign && !drawing.path.contains("_disabled"_L1))
        image = StandingOut(image, drawing);
    if (drawing.path.contains("/step_"_L1) && QGuiApplication::isRightToLeft())
        image = image.mirrored(true, false);
    return QPixmap::fromImage(image);
}

} // namespace vellumo
