#include "ui/common/drawing_file.h"

#include "ui/common/contrast.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr int largestSign = 32; // pixels

QByteArray TextOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Each colour of a sign stands out from its grounds, itself where it does, or lighter or darker.
/// White lies on another colour: where that became another, it is the ground.
QByteArray StandingOut(const QByteArray &text)
{
    constexpr int raised = 125; // hundredths: styles paint dark buttons lighter than they are
    const QPalette palette = QGuiApplication::palette();
    const QColor window = palette.color(QPalette::Window), button = palette.color(QPalette::Button);
    static const QRegularExpression ink(u"(?<=fill=\"|stroke=\")#[0-9a-f]{6}(?=\")"_s);
    const QString before = QString::fromUtf8(text);
    QString after = before;
    bool isChanged = false;
    for (const auto &found : ink.globalMatch(before)) {
        const QColor colour(found.captured());
        const bool isWhite = colour == QColor(Qt::white);
        const QColor legible =
            isWhite ? button
                    : Legible(colour, {window, button, button.lighter(raised)}, pictureContrast);
        isChanged |= !isWhite && legible != colour;
        after.replace(found.capturedStart(), found.capturedLength(), legible.name());
    }
    return isChanged ? after.toUtf8() : text;
}

} // namespace

DrawingFile::DrawingFile(const QString &file) : path(file), text(TextOf(file)), renderer(text) {}

QPixmap Drawn(DrawingFile &drawing, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const bool isSign = drawing.renderer.defaultSize().width() <= largestSign;
    if (isSign && !drawing.path.contains("_disabled"_L1))
        QSvgRenderer(StandingOut(drawing.text)).render(&painter);
    else
        drawing.renderer.render(&painter);
    painter.end();
    if (drawing.path.contains("/step_"_L1) && QGuiApplication::isRightToLeft())
        image = image.mirrored(true, false);
    return QPixmap::fromImage(image);
}

} // namespace vellumo
