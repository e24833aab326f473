// Takes the pictures of the windows that the documentation shows and that a person looks at:
// take_pictures FOLDER [dark]. QT_SCALE_FACTOR sets the scale.
#include "ui/support/designer.h"
#include "ui/support/prompt_script.h"

#include <QPalette>
#include <QStyleFactory>

#include <iostream>

using namespace Qt::StringLiterals;

namespace {

/// The palette of a dark desktop, from the two colours of its windows and boxes.
QPalette DarkPalette()
{
    QPalette dark(QColor(45, 45, 48), QColor(40, 40, 42));
    dark.setColor(QPalette::Base, QColor(30, 30, 32));
    dark.setColor(QPalette::AlternateBase, QColor(38, 38, 40));
    dark.setColor(QPalette::Link, QColor(110, 170, 250));
    dark.setColor(QPalette::Highlight, QColor(50, 100, 170));
    return dark;
}

void Keep(const QWidget &window, const QString &path)
{
    QApplication::processEvents();
    const bool saved = const_cast<QWidget &>(window).grab().save(path);
    std::cout << (saved ? "" : "not saved: ") << path.toStdString() << '\n';
}

void TakeSteps(const QString &folder)
{
    Designer designer(DataFile(u"projects/SiteVisit.vmp"_s));
    const PromptScript prompts({u"OK"_s});
    for (int step = 1; step <= 4; ++step) {
        designer.ClickTab(step);
        if (step == 4) {
            designer.Find<QLineEdit>("txtAppVersion")->setText(u"1.0 beta"_s);
            designer.Find<QLineEdit>("txt3_appDir")->setText(u"C:"_s);
            designer.Click("cmdReviewForm");
        }
        Keep(designer.window, folder + u"/step-%1.png"_s.arg(step));
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    const QStringList arguments = QApplication::arguments();
    if (arguments.contains(u"dark"_s))
        QApplication::setPalette(DarkPalette());
    TakeSteps(arguments.value(1, u"."_s));
    return 0;
}
