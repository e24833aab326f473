// A main window with nothing in it: what any program of the toolkit costs.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(860, 620);
    window.setWindowTitle(QStringLiteral("Empty"));
    window.show();
    return QApplication::exec();
}
