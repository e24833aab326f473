// Draws the program's icon for desktops that want it in pixels: render-icon DRAWING SIZE PICTURE.
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char *argv[])
{
    const int size = argc == 4 ? QByteArray(argv[2]).toInt() : 0;
    if (size <= 0) {
        std::fputs("Usage: render-icon DRAWING SIZE PICTURE\n", stderr);
        return 1;
    }
    QSvgRenderer drawing(QFile::decodeName(argv[1]));
    QImage picture(size, size, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter);
    painter.end();
    if (drawing.isValid() && picture.save(QFile::decodeName(argv[3]), "PNG"))
        return 0;
    std::fprintf(stderr, "render-icon: %s cannot be read, or %s not written\n", argv[1], argv[3]);
    return 1;
}
