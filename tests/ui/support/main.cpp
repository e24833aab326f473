#include "support/run_tests.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    // The toolkit's own dialogs everywhere: a test can reach into them.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    return RunTests(argc, argv);
}
