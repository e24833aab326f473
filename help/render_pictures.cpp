// Renders the handheld's screens as the pictures of the help, since not every viewer of help files
// knows drawings: render-pictures DRAWINGS PICTURES, two folders. Run it when a drawing changed.
#include <QGuiApplication>
#include <QPainter>
#include <QSvgRenderer>

#include <iostream>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    // Needs no display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList folders = QGuiApplication::arguments().sliced(1);
    if (folders.size() != 2) {
        std::cerr << "Usage: render-pictures DRAWINGS PICTURES\n";
        return 1;
    }
    for (int number = 103; number <= 112; ++number) {
        QSvgRenderer drawing(u"%1/%2.svg"_s.arg(folders[0]).arg(number));
        QImage picture(320, 320, QImage::Format_RGB32);
        QPainter painter(&picture);
        drawing.render(&painter);
        painter.end();
        picture.convertTo(QImage::Format_RGB888);
        if (!drawing.isValid() || !picture.save(u"%1/%2.png"_s.arg(folders[1]).arg(number))) {
            std::cerr << "render-pictures: " << number << " cannot be read or written\n";
            return 1;
        }
    }
    return 0;
}
