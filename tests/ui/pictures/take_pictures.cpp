// Takes the pictures of the windows that the documentation shows and that a person looks at:
// take_pictures FOLDER [dark|high-contrast] [right-to-left] [POINTS of text]. QT_SCALE_FACTOR sets
// the scale, QT_QPA_PLATFORM=offscreen:configfile=FILE the screen (tests/data/screens has some).
#include "ui/about/frmAbout.h"
#include "ui/about/help_window.h"
#include "ui/about/myHelp.h"
#include "ui/common/prompt_box.h"
#include "ui/common/prompts.h"
#include "ui/main/fileOpenForm.h"
#include "ui/main/logoForm.h"
#include "ui/questions/frmWizard.h"
#include "ui/questions/item_list_editor.h"
#include "ui/questions/propertyForm.h"
#include "ui/support/designer.h"
#include "ui/support/every_window.h"
#include "ui/support/palettes.h"
#include "ui/support/prompt_script.h"

#include <QStyleFactory>
#include <QTableView>

#include <iostream>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString example = DataFile(u"../../examples/SiteVisit.vmp"_s);

void Keep(const QWidget &window, const QString &path)
{
    SettleWindows();
    const bool saved = const_cast<QWidget &>(window).grab().save(path);
    std::cout << (saved ? "" : "not saved: ") << path.toStdString() << '\n';
}

void TakeSteps(const QString &folder)
{
    Designer designer(example);
    const PromptScript prompts({u"OK"_s});
    for (int step = 1; step <= 4; ++step) {
        designer.ClickTab(step);
        if (step == 2) {
            auto *grid = designer.Find<QTableView>("DataGrid1");
            const QRect hazards = grid->visualRect(grid->model()->index(7, 1));
            QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, hazards.center());
        }
        if (step == 4) {
            designer.Find<QLineEdit>("txtAppVersion")->setText(u"1.0 beta"_s);
            designer.Find<QLineEdit>("txt3_appDir")->setText(u"C:"_s);
            designer.Click("cmdReviewForm");
            EXPECT_EQ(prompts.boxes().size(), 1u) << "what the review found";
        }
        Keep(designer.window, folder + u"/step-%1.png"_s.arg(step));
    }
}

void TakeWizard(const QString &folder)
{
    Designer designer(example);
    frmWizard wizard(const_cast<ProjectDocument &>(designer.window.document()), nullptr);
    wizard.show();
    wizard.findChild<QListWidget *>(u"lstWiz1_1"_s)->setCurrentRow(2);
    wizard.findChild<QPlainTextEdit *>(u"txtWiz3_1"_s)
        ->setPlainText(u"Which species came first?"_s);
    for (int step = 1; step <= 5; ++step) {
        Keep(wizard, folder + u"/wizard-%1.png"_s.arg(step));
        if (step == 4)
            wizard.findChild<ItemListEditor *>()->SetItems({u"Heron"_s, u"Grebe"_s, u"Tern"_s});
        wizard.findChild<QAbstractButton *>(u"cmdNav_3"_s)->click();
    }
}

void TakeProperties(const QString &folder)
{
    Designer designer(example);
    auto &document = const_cast<ProjectDocument &>(designer.window.document());
    for (const int row : {0, 2}) {
        document.source().SetPosition(row);
        propertyForm properties(document, nullptr);
        properties.show();
        Keep(properties, folder + u"/properties-%1.png"_s.arg(row));
    }
}

void TakeStart(const QString &folder)
{
    Environment environment;
    environment.siteAddress = u"https://vellumo.example"_s;
    environment.version = u"1.1.2"_s;
    logoForm splash(environment, [](QWidget *) {});
    splash.show();
    Keep(splash, folder + u"/splash.png"_s);
    fileOpenForm chooser(folder, [] {});
    chooser.show();
    Keep(chooser, folder + u"/chooser.png"_s);
}

void TakeHelp(const QString &folder)
{
    Environment environment;
    environment.siteAddress = u"https://vellumo.example"_s;
    environment.version = u"1.1.2"_s;
    environment.helpFile = QStringLiteral(HELP_FILE);
    frmAbout about(environment);
    about.show();
    Keep(about, folder + u"/about.png"_s);

    myHelp help(environment);
    help.ShowHelp(HH_HELP_CONTEXT, 5, nullptr);
    for (const QWidget *window : QApplication::topLevelWidgets())
        if (qobject_cast<const HelpWindow *>(window))
            Keep(*window, folder + u"/help.png"_s);
}

void TakeBoxes(const QString &folder)
{
    const QString sure = u"Are you sure you want to delete this question?"_s,
                  kept = u"SiteVisit.vmp was not saved when Vellumo Designer ended. "
                         "Do you want to open the rescued copy?"_s,
                  where = u"The copy was made at 2026-01-31 12:34:56.\n/home/user/SiteVisit.vmp"_s,
                  refused = u"Not added:"_s +
                            u"\nLine 2: \"Grey heron\" stands in the list already."_s.repeated(10);
    const struct {
        QMessageBox::Icon icon;
        QString text, below;
    } boxes[] = {{QMessageBox::Warning, sure, {}},
                 {QMessageBox::Question, sure, {}},
                 {QMessageBox::Question, kept, where},
                 {QMessageBox::Warning, refused, {}}};
    for (int number = 1; const auto &[icon, text, below] : boxes) {
        PromptBox box(icon, productName, text, below, QMessageBox::Yes | QMessageBox::No, nullptr);
        box.show();
        Keep(box, folder + u"/box-%1.png"_s.arg(number++));
    }
}

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): a fault of the tool may end it
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    const QStringList arguments = QApplication::arguments();
    if (arguments.contains(u"dark"_s))
        QApplication::setPalette(DarkPalette());
    if (arguments.contains(u"high-contrast"_s))
        QApplication::setPalette(HighContrastPalette());
    if (arguments.contains(u"right-to-left"_s))
        QApplication::setLayoutDirection(Qt::RightToLeft);
    QFont text = QApplication::font();
    for (const QString &argument : arguments.mid(2))
        if (const int points = argument.toInt(); points > 0)
            text.setPointSize(points);
    QApplication::setFont(text);
    const QString folder = arguments.value(1, u"."_s);
    TakeSteps(folder);
    TakeWizard(folder);
    TakeProperties(folder);
    TakeStart(folder);
    TakeHelp(folder);
    TakeBoxes(folder);
    return 0;
}
