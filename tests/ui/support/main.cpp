#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char *argv[])
{
    // The toolkit's own dialogs everywhere: a test can reach into them.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
